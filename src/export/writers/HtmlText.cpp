#include "export/writers/HtmlText.h"

namespace KOVAVSFDataGridLib {

void appendHtml(QByteArray &html, QByteArrayView utf8)
{
    for (qsizetype i = 0; i < utf8.size(); ++i) {
        switch (const char c = utf8[i]) {
        case '&':
            html += "&amp;";
            break;
        case '<':
            html += "&lt;";
            break;
        case '>':
            html += "&gt;";
            break;
        case '"':
            html += "&quot;";
            break;
        case '\r':
            if (i + 1 < utf8.size() && utf8[i + 1] == '\n')
                break;
            [[fallthrough]];
        case '\n':
            html += "<br>";
            break;
        default:
            html += c;
        }
    }
}

} // namespace KOVAVSFDataGridLib
