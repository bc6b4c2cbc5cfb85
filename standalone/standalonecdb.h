// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "designs/edits.h"
#include "host/netlist/cdbcore.h"

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

namespace designs {
class Design;
}
class LoadedDesign;
struct AdiAssignment;

/// The component database of the standalone host: says on which side of the board a component stands, and
/// collects what scripts write until the batch is written as a whole.
class StandaloneCdb final : public CDBCORE
{
public:
    /// Writes edits of the design, all of them or none, and gives what kept them from being written.
    using Writer = std::function<QList<CDBPROBLEM>(std::span<const designs::Edit>)>;
    /// Works out what the writer would change, or what would keep it from writing.
    using Previewer = std::function<CDBPREVIEW(std::span<const designs::Edit>, QList<CDBPROBLEM> *problems)>;

    StandaloneCdb();

    /// A batch that is open then is not written: what it collected was for the design before.
    void setDesign(std::shared_ptr<const LoadedDesign> design);
    void setWriter(Writer writer) { m_writer = std::move(writer); }
    void setPreviewer(Previewer previewer) { m_previewer = std::move(previewer); }
    /// Places the components as this later reading of the same design does; null, as after setDesign(), for
    /// the design itself.
    void setBoard(std::shared_ptr<const designs::Design> board) { m_board = std::move(board); }

    /// Reads the board file at the first question about a design. The records are shared: one per side.
    [[nodiscard]] const CDBPART *getpart(quint64 identifier) override;

    /// Refuses scripts that are none, see readAdiScript(), references that the design lacks or that stand on
    /// several symbols, and edits that cannot be made. A batch with anything refused is not written.
    void adi(std::istream &script, std::ostream &report, int mode) override;
    void beginbatch() override;
    bool commitbatch() override;
    /// Edits that were refused when they were collected do not keep the others from being worked out.
    std::optional<CDBPREVIEW> previewbatch() override;
    void dropbatch() override;
    void afterbatch(const std::function<void()> &action) override;
    [[nodiscard]] QList<CDBPROBLEM> problems() const override { return m_problems; }

private:
    void run(std::istream &script, int mode);
    void stage(const AdiAssignment &assignment);
    /// The edit of the batch that gives that property another value under another name, null when there is
    /// none.
    [[nodiscard]] const designs::Edit *contradicted(const designs::Edit &edit);
    [[nodiscard]] QString places(std::span<const std::size_t> components) const;
    void refuse(const AdiAssignment &assignment, const QString &reason);
    void fail(const QString &reason);
    void forget();

    std::shared_ptr<const LoadedDesign> m_design;
    Writer m_writer;
    Previewer m_previewer;
    int m_depth = 0;
    std::vector<std::function<void()>> m_afterBatch;
    std::vector<designs::Edit> m_staged;
    /// By component and property, the last edit of it as an index into the staged ones.
    std::unordered_map<std::string, std::size_t> m_lastEdits;
    QList<CDBPROBLEM> m_problems;
    std::shared_ptr<const designs::Design> m_board;
    CDBLAYOUT m_topLayout;
    CDBLAYOUT m_bottomLayout;
    CDBPART m_notPlaced;
    CDBPART m_top;
    CDBPART m_bottom;
};
