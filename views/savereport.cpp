// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/savereport.h"

#include "host/framework/hostui.h"
#include "host/framework/reportfile.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QUrl>

QString saveReport(QWidget *parent, const SaveRequest &request, const std::function<QByteArray()> &content)
{
    HostUi &ui = HostUi::current();
    QString path = ui.saveFileName(parent, request.caption, request.path, request.filter);
    if (path.isEmpty()) {
        return {};
    }
    QString reason;
    const ReportFileResult result = writeReportFile(path, content(), &reason);
    if (result != ReportFileResult::Written) {
        ui.warning(parent, QCoreApplication::translate("BOMView", "Output Failed"),
                   reportFileMessage(result, path, reason));
        return {};
    }
    ui.openUrl(QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()));
    return path;
}
