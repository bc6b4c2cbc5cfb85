// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#pragma once

#include "templates/bomcategory.h"
#include "templates/bomfields.h"
#include "templates/bomtemplatefile.h"

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QVariantMap>

#include <optional>

class QSettings;
struct TemplateMessage;

/// The data of a template. Member names are the names that files use.
struct BOMTemplateRecord
{
    qint32 version = BOMTemplateFile::CurrentVersion;
    bool suppressEmptyCategories = false;
    bool groupReferences = true;
    bool fullTextOuputs = false;
    QList<BOMCategory> categories;
    BOMFields fields;
    QString CSS;
    QString DocumentHeader;
    QString DocumentFooter;
    QString PageHeader;
    QString PageFooter;
    bool AppendNotes = false;
    int AsciiQuantityWidth = 5;
    int AsciiRefWidth = 30;
    int PrettyQuantityWidth = 7;
    int PrettyRefWidth = 15;
    bool ManualPrettyLayout = false;
    bool AlwaysQuoteRefs = false;
    bool ExcludeValueField = false;
    bool CaseSensitiveGrouping = true;
    bool LayoutForReading = false;
    QString name;
    QSettings *legacySettings = nullptr;
    QString htmlTemplateFileName;
    QString filePath;
    /// The format version of the file that was read or written last, 0 without one.
    qint32 fileVersion = 0;
};

/// A named set of report settings: columns, categories, how references are listed, style sheet, header and
/// footer, layout. A value: copies are independent. Numbers are kept as they were read; code that uses them
/// clamps them.
class BOMTemplate
{
    Q_DECLARE_TR_FUNCTIONS(BOMTemplate)

public:
    /// The format version that templates have in memory and are written in.
    static constexpr qint32 CurrentVersion = BOMTemplateFile::CurrentVersion;

    /// The default settings, without a name.
    BOMTemplate();

    /// The settings of a file, or the defaults when it cannot be read.
    BOMTemplate(const QString &name, const QString &filePath);

    /// The settings that the legacy store has under `name`; see load(). The store stays the caller's and must
    /// outlive the template and its copies.
    BOMTemplate(const QString &name, QSettings *legacySettings);

    BOMTemplate(const BOMTemplate &) = default;
    BOMTemplate(BOMTemplate &&) = default;
    BOMTemplate &operator=(const BOMTemplate &) = default;
    BOMTemplate &operator=(BOMTemplate &&) = default;
    virtual ~BOMTemplate() = default;

    /// The settings of a file, named after it. Nothing, with the problem, when it cannot be read: for callers
    /// that must not take the defaults instead.
    [[nodiscard]] static std::optional<BOMTemplate> fromFile(const QString &filePath, QString *problem);

    /// Puts every setting to its default; name, file path and legacy store stay.
    void setDefaults();

    /// Reads the settings from the file, at version 1 from the legacy store; at version 0 does nothing. A
    /// file that cannot be read gives the defaults, a message and false, and is not touched. The legacy
    /// store's entry is the one of the template's name, else "Default", else the defaults; such settings get
    /// the default style sheet. Without an entry of the name they are saved at once, where there is no file.
    bool load();

    /// Writes the settings to the file and takes them out of the legacy store. False when they were not
    /// written: then the old file is kept, and unless the version is an old one there is a message.
    bool save();

    /// The settings under the names that files use, without htmlTemplateFileName.
    [[nodiscard]] QVariantMap toVariantMap() const;

    /// Takes the keys that documents of the present version() have; the version is the current one after it.
    /// A missing key gives false, 0, empty or no items, not the default.
    void fromVariantMap(const QVariantMap &map);

    [[nodiscard]] QString name() const { return m_record.name; }
    /// Also sets the file path: NAME.bomt in the primary templates folder, empty when the name cannot be a
    /// file name, which makes save() fail.
    void setName(const QString &name);

    [[nodiscard]] QString filePath() const { return m_record.filePath; }
    void setFilePath(const QString &path) { m_record.filePath = path; }

    /// The store that this template is being moved out of, or null. Not owned.
    [[nodiscard]] QSettings *legacySettings() const { return m_record.legacySettings; }
    void setLegacySettings(QSettings *settings) { m_record.legacySettings = settings; }

    [[nodiscard]] qint32 version() const { return m_record.version; }
    void setVersion(qint32 version) { m_record.version = version; }

    [[nodiscard]] const BOMFields &fields() const { return m_record.fields; }
    void setFields(const BOMFields &fields) { m_record.fields = fields; }

    [[nodiscard]] const QList<BOMCategory> &categories() const { return m_record.categories; }
    void setCategories(const QList<BOMCategory> &categories) { m_record.categories = categories; }

    [[nodiscard]] bool suppressEmptyCategories() const { return m_record.suppressEmptyCategories; }
    void setSuppressEmptyCategories(bool suppress) { m_record.suppressEmptyCategories = suppress; }

    /// True for "R1-R7", false for "R1,R2...".
    [[nodiscard]] bool groupReferences() const { return m_record.groupReferences; }
    void setGroupReferences(bool group) { m_record.groupReferences = group; }

    [[nodiscard]] bool fullTextOuputs() const { return m_record.fullTextOuputs; }
    void setFullTextOuputs(bool full) { m_record.fullTextOuputs = full; }

    [[nodiscard]] QString css() const { return m_record.CSS; }
    void setCss(const QString &css) { m_record.CSS = css; }

    /// Headers and footers are fragments of HTML; those of the page repeat on each printed page.
    [[nodiscard]] QString documentHeader() const { return m_record.DocumentHeader; }
    void setDocumentHeader(const QString &html) { m_record.DocumentHeader = html; }
    [[nodiscard]] QString documentFooter() const { return m_record.DocumentFooter; }
    void setDocumentFooter(const QString &html) { m_record.DocumentFooter = html; }
    [[nodiscard]] QString pageHeader() const { return m_record.PageHeader; }
    void setPageHeader(const QString &html) { m_record.PageHeader = html; }
    [[nodiscard]] QString pageFooter() const { return m_record.PageFooter; }
    void setPageFooter(const QString &html) { m_record.PageFooter = html; }

    [[nodiscard]] bool appendNotes() const { return m_record.AppendNotes; }
    void setAppendNotes(bool append) { m_record.AppendNotes = append; }

    /// ASCII widths are in characters, pretty widths in percent of the table.
    [[nodiscard]] int asciiQuantityWidth() const { return m_record.AsciiQuantityWidth; }
    void setAsciiQuantityWidth(int width) { m_record.AsciiQuantityWidth = width; }
    [[nodiscard]] int asciiRefWidth() const { return m_record.AsciiRefWidth; }
    void setAsciiRefWidth(int width) { m_record.AsciiRefWidth = width; }
    [[nodiscard]] int prettyQuantityWidth() const { return m_record.PrettyQuantityWidth; }
    void setPrettyQuantityWidth(int width) { m_record.PrettyQuantityWidth = width; }
    [[nodiscard]] int prettyRefWidth() const { return m_record.PrettyRefWidth; }
    void setPrettyRefWidth(int width) { m_record.PrettyRefWidth = width; }

    /// Whether the HTML table takes the pretty widths and the fields' manualWidth.
    [[nodiscard]] bool manualPrettyLayout() const { return m_record.ManualPrettyLayout; }
    void setManualPrettyLayout(bool manual) { m_record.ManualPrettyLayout = manual; }

    [[nodiscard]] bool alwaysQuoteRefs() const { return m_record.AlwaysQuoteRefs; }
    void setAlwaysQuoteRefs(bool quote) { m_record.AlwaysQuoteRefs = quote; }

    [[nodiscard]] bool excludeValueField() const { return m_record.ExcludeValueField; }
    void setExcludeValueField(bool exclude) { m_record.ExcludeValueField = exclude; }

    [[nodiscard]] bool caseSensitiveGrouping() const { return m_record.CaseSensitiveGrouping; }
    void setCaseSensitiveGrouping(bool sensitive) { m_record.CaseSensitiveGrouping = sensitive; }

    /// Whether documents, spreadsheets and text columns are laid out for people: numbers on the right,
    /// columns and totals without any value left out or said to be empty, texts wrapped instead of cut. What
    /// programs read, CSV and JSON, stays as it is.
    [[nodiscard]] bool layoutForReading() const { return m_record.LayoutForReading; }
    void setLayoutForReading(bool forReading) { m_record.LayoutForReading = forReading; }

    /// Whether the file comes from a later version of the program, so that it may hold more than was read.
    /// Ends with save().
    [[nodiscard]] bool isOfLaterVersion() const { return m_record.fileVersion > CurrentVersion; }
    /// Whether the file is of an earlier version. Ends with save().
    [[nodiscard]] bool isOfEarlierVersion() const
    {
        return m_record.fileVersion != 0 && m_record.fileVersion < CurrentVersion;
    }
    /// What the user is to be told about a later version.
    [[nodiscard]] TemplateMessage laterVersionMessage() const;

    /// Absolute path of the HTML file that an old template used, else empty.
    [[nodiscard]] QString htmlTemplateFileName() const { return m_record.htmlTemplateFileName; }
    void setHtmlTemplateFileName(const QString &path) { m_record.htmlTemplateFileName = path; }

private:
    bool loadFromFile();
    void take(const BOMTemplateDocument &document);
    void loadFromLegacySettings();

    BOMTemplateRecord m_record;
};
