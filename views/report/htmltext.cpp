// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "views/report/htmltext.h"

QString htmlDocumentStart(const QString &title, const QString &css)
{
    return QStringLiteral(
               "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
               "   <!DOCTYPE html PUBLIC \"-//W3C//DTD XHTML 1.0 Transitional//EN\" "
               "\"http://www.w3.org/TR/xhtml1/DTD/xhtml1-transitional.dtd\">\n"
               "      <html>\n"
               "\t      <head>\n"
               "\t         <meta http-equiv=\"Content-Type\" content=\"text/html; charset=UTF-8\" />\n"
               "\t         <title>") +
           title + QStringLiteral("</title>\n\t         <style type=\"text/css\">\n") + css +
           QStringLiteral("\n\t         </style>\t      </head>\n\t   <body>\n");
}

QString htmlDocumentEnd()
{
    return QStringLiteral("</body>\n</html>");
}
