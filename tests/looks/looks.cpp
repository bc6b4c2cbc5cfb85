// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
//
// looks FOLDER [NAME...]: makes pictures of windows, in light and dark and in English and German, as
// FOLDER/NAME-light-100-en.png. The number is the scale in percent, for which QT_SCALE_FACTOR is to be set.
// NAME picks the windows whose names begin so. It fails when a window has a flaw, which it names.
#include "host/framework/hostsettings.h"
#include "looks/accessibletree.h"
#include "looks/flaws.h"
#include "looks/pictures.h"
#include "support/scriptedui.h"

#include <QApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QPixmap>
#include <QStyle>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QTest>
#include <QTranslator>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

namespace {

struct Theme
{
    const char *name;
    QPalette palette;
};

QPalette darkPalette()
{
    const QColor text(0xe8, 0xe8, 0xe8);
    const QColor weak(0x80, 0x80, 0x80);
    const QColor window(0x32, 0x32, 0x32);
    QPalette palette(text, window, QColor(0x50, 0x50, 0x50), QColor(0x1c, 0x1c, 0x1c),
                     QColor(0x28, 0x28, 0x28), text, Qt::white, QColor(0x20, 0x20, 0x20), window);
    palette.setColor(QPalette::AlternateBase, QColor(0x2a, 0x2a, 0x2a));
    palette.setColor(QPalette::Button, QColor(0x3c, 0x3c, 0x3c));
    palette.setColor(QPalette::ToolTipBase, QColor(0x3c, 0x3c, 0x3c));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, weak);
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x6d, 0xb0));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x6c, 0xb4, 0xf5));
    palette.setColor(QPalette::LinkVisited, QColor(0xb8, 0x9c, 0xe8));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, weak);
    }
    return palette;
}

/// The language of all windows made while it lives: Qt's own texts, ours, and the form of numbers.
class Language final
{
public:
    explicit Language(const QString &name)
    {
        QLocale::setDefault(QLocale(name));
        if (name != QStringLiteral("en")) {
            install(QLibraryInfo::path(QLibraryInfo::TranslationsPath) + QStringLiteral("/qtbase_") + name);
            install(QStringLiteral(":/bom/translations/bom_") + name);
        }
    }

    [[nodiscard]] bool isComplete() const { return m_isComplete; }

private:
    void install(const QString &file)
    {
        m_translators.push_back(std::make_unique<QTranslator>());
        if (!m_translators.back()->load(file) ||
            !QCoreApplication::installTranslator(m_translators.back().get())) {
            std::fprintf(stderr, "looks: %s.qm cannot be read\n", qPrintable(file));
            m_isComplete = false;
        }
    }

    /// One that is deleted is no longer installed.
    std::vector<std::unique_ptr<QTranslator>> m_translators;
    bool m_isComplete = true;
};

/// How windows are shown, besides what they show.
struct Variant
{
    QString theme;
    QString scale;
    QString language;

    [[nodiscard]] QString nameFor(const QString &picture) const
    {
        return QStringList{picture, theme, scale, language}.join(u'-');
    }
};

/// Says what is wrong with a window; once, as the colours do not matter. False when something is.
bool isFlawless(QWidget *window, const QString &name, const Variant &variant)
{
    if (variant.theme != QStringLiteral("light")) {
        return true;
    }
    const QStringList flaws = flawsOf(*window) + accessibilityFlawsOf(window);
    for (const QString &flaw : flaws) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(name), qPrintable(flaw));
    }
    return flaws.isEmpty();
}

/// The settings of one picture, so that none remembers what another did.
class OwnSettings final
{
public:
    OwnSettings()
    {
        // Not the first run, in which a dialog opens by itself.
        m_settings.setValue(QStringLiteral("BOM"), QStringLiteral("BomScriptsImported"),
                            QStringLiteral("true"));
        HostSettings::install(&m_settings);
    }
    OwnSettings(const OwnSettings &) = delete;
    OwnSettings &operator=(const OwnSettings &) = delete;
    ~OwnSettings() { HostSettings::install(nullptr); }

private:
    MemoryHostSettings m_settings;
};

/// Whether the picture could be made and written, of a window without flaws.
bool save(const Picture &picture, const Variant &variant, const QDir &folder)
{
    const OwnSettings settings;
    const std::shared_ptr<QWidget> window = picture.make();
    if (!window) {
        return false;
    }
    window->show();
    if (!QTest::qWaitForWindowExposed(window.get())) {
        return false;
    }
    const QString name = variant.nameFor(picture.name);
    const bool isSaved = window->grab().save(folder.filePath(name + QStringLiteral(".png")));
    return isFlawless(window.get(), name, variant) && isSaved;
}

bool isAskedFor(const QString &name, const QStringList &names)
{
    return names.isEmpty() || std::any_of(names.begin(), names.end(),
                                          [&](const QString &asked) { return name.startsWith(asked); });
}

/// Returns the exit status.
int saveAll(const QDir &folder, const QStringList &names, const Variant &variant)
{
    int status = 0;
    for (const Picture &picture : pictures()) {
        if (isAskedFor(picture.name, names) && !save(picture, variant, folder)) {
            std::fprintf(stderr, "looks: %s has flaws or cannot be made\n",
                         qPrintable(variant.nameFor(picture.name)));
            status = 1;
        }
    }
    return status;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QStringList names = QCoreApplication::arguments().mid(1);
    if (names.isEmpty()) {
        std::fputs("usage: looks FOLDER [NAME...]\n", stderr);
        return 2;
    }
    const QDir folder(names.takeFirst());
    const QTemporaryDir home;
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    ScriptedUi ui;
    const QString scale = QString::number(qRound(application.devicePixelRatio() * 100));
    const Theme themes[] = {{"light", QApplication::style()->standardPalette()}, {"dark", darkPalette()}};
    int status = folder.mkpath(QStringLiteral(".")) ? 0 : 1;
    for (const QString &name : {QStringLiteral("en"), QStringLiteral("de")}) {
        const Language language(name);
        status = std::max(status, language.isComplete() ? 0 : 1);
        ui.numberFormat = QLocale();
        for (const Theme &theme : themes) {
            QApplication::setPalette(theme.palette);
            const Variant variant{QString::fromLatin1(theme.name), scale, name};
            status = std::max(status, saveAll(folder, names, variant));
        }
    }
    return status;
}
