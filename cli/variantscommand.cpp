// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "cli/variantscommand.h"

#include "cli/console.h"
#include "cli/designarguments.h"
#include "cli/opendesign.h"
#include "cli/texts.h"
#include "standalone/designsession.h"
#include "views/report/jsonreport.h"
#include "views/report/jsonwriter.h"

namespace {

QByteArray jsonText(const QStringList &variants)
{
    JsonWriter json;
    json.beginObject();
    writeTexts(json, u"variants", variants);
    json.endObject();
    return json.bytes() + '\n';
}

QByteArray readableText(const QStringList &variants)
{
    QString text;
    for (const QString &variant : variants) {
        text += printable(variant) + u'\n';
    }
    return text.toUtf8();
}

} // namespace

void VariantsCommand::addTo(CLI::App &program)
{
    m_app = program.add_subcommand(
        "variants", QT_TRANSLATE_NOOP("Help", "List the variants of the design, for --variant"));
    DesignArguments::addPath(*m_app, m_design);
    m_app->add_flag("--json", m_json,
                    QT_TRANSLATE_NOOP("Help", "Write JSON for programs instead of one name a line"));
}

ExitStatus VariantsCommand::run()
{
    const CliUi ui(QLocale::c());
    DesignSession session;
    if (const ExitStatus status = openSession(session, QString::fromStdString(m_design), {});
        status != ExitStatus::Done) {
        return status;
    }
    const QStringList variants = session.variants();
    if (variants.isEmpty()) {
        console::notice(QString::fromStdString(m_design) + QStringLiteral(": ") +
                        CommandLine::tr("the design has no variants"));
    }
    return console::write(m_json ? jsonText(variants) : readableText(variants))
               ? ExitStatus::Done
               : ExitStatus::UnwritableOutput;
}
