// SPDX-FileCopyrightText: 2026 The BOM developers
// SPDX-License-Identifier: MIT
#include "fuzz/fuzztarget.h"

#include "richtext/css/stylesheet.h"
#include "richtext/xhtml/markupcleaner.h"
#include "richtext/xhtml/qthtmlwriter.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    const CleanMarkup cleaned = MarkupCleaner().clean(text);
    promise(cleaned.problem.isEmpty() || cleaned.xhtml.isEmpty(), "what is refused is not shown");
    promise(!cleaned.xhtml.contains(QLatin1String("<script"), Qt::CaseInsensitive), "no script stays");
    const CleanMarkup again = MarkupCleaner().clean(cleaned.xhtml);
    promise(again.leftOut.isEmpty() && again.problem.isEmpty(), "what was cleaned is clean");
    const StyleSheet css(text);
    (void)toQtHtml(cleaned.xhtml, css, Medium::Window);
    (void)toQtHtml(cleaned.xhtml, css, Medium::Pages);
    return 0;
}

std::vector<std::string> fuzzSeeds()
{
    return {"<p class='DocHeader' style='color: red; background: "
            "url(x)'>a<b>b</b><br/>&nbsp;</p><ul><li>c</li></ul>",
            "<table width='100%'><thead><tr><th colspan='2'>h</th></tr></thead><tbody><tr><td "
            "id='a'>x</td></tr></tbody>"
            "</table><a href='#a'>y</a><img src='data:image/png;base64,AA==' alt='z'/>",
            "p.a { margin: 1pt; background: url(x) } @import 'x'; "
            "<script>x</script><dl><dt>a</dt><dd>b</dd></dl>"};
}

std::vector<std::string> fuzzWords()
{
    return {"<",       ">",    "/>",      "</p>", "<td>", "<table>", "<div>",
            "style='", "url(", "@import", "<!--", "-->",  "&#",      "]]>"};
}
