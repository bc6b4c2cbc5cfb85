// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "app/workbench.h"
#include "host/framework/hostsettings.h"
#include "host/widgets/qthostui.h"
#include "richtext/editor/textedit.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

namespace {

/// Notes when the report is painted for the first time.
class FirstPaint final : public QObject
{
public:
    FirstPaint(TextEdit &edit, const QElapsedTimer &clock)
        : m_edit(edit)
        , m_clock(clock)
    {
        edit.viewport()->installEventFilter(this);
    }

    [[nodiscard]] qint64 time() const { return m_time; }

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && m_time < 0 && m_edit.document()->blockCount() > 1) {
            m_time = m_clock.elapsed();
        }
        return false;
    }

private:
    TextEdit &m_edit;
    const QElapsedTimer &m_clock;
    qint64 m_time = -1;
};

/// Prints in ms: until the report of the design is seen, until all of it is laid out, and the longest that
/// the window did not answer in between. Returns the exit status.
int measure(Workbench &workbench, const QString &design)
{
    workbench.window().resize(1280, 800);
    workbench.window().show();
    QElapsedTimer clock;
    clock.start();
    const bool isOpen = workbench.open(design);
    // The module makes it for the first design.
    auto *edit = workbench.window().findChild<TextEdit *>();
    if (!isOpen || edit == nullptr) {
        return 3;
    }
    const FirstPaint paint(*edit, clock);
    edit->viewport()->update();
    qint64 pause = 0;
    while (paint.time() < 0 || !edit->document()->isComplete()) {
        const qint64 before = clock.elapsed();
        const bool wasPainted = paint.time() >= 0;
        QCoreApplication::processEvents();
        pause = wasPainted ? std::max(pause, clock.elapsed() - before) : 0;
    }
    std::printf("%lld %lld %lld\n", static_cast<long long>(paint.time()),
                static_cast<long long>(clock.elapsed()), static_cast<long long>(pause));
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (argc != 3) {
        std::fputs("usage: measure_window MODULE DESIGN\n", stderr);
        return 2;
    }
    const QTemporaryDir home;
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
    QtHostUi ui;
    HostUi::install(&ui);
    MemoryHostSettings settings;
    HostSettings::install(&settings);
    Workbench workbench;
    if (!workbench.start(QString::fromLocal8Bit(argv[1]))) {
        std::fprintf(stderr, "measure_window: %s\n", qPrintable(workbench.error()));
        return 3;
    }
    return measure(workbench, QString::fromLocal8Bit(argv[2]));
}
