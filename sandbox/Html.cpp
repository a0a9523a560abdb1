#include "Html.h"

using namespace Qt::StringLiterals;

namespace quorvane::sandbox::Html {

namespace {

const QString styleSheet = uR"(
*{box-sizing:border-box}
body{margin:0;background:#f4f5f7;color:#1d1d1f;font:15px/1.5 system-ui,-apple-system,"Segoe UI",Roboto,"DejaVu Sans",sans-serif}
main{max-width:720px;margin:40px auto;padding:0 20px}
header.brand{display:flex;align-items:center;gap:10px;margin-bottom:18px;color:#6e6e73;font-weight:600;letter-spacing:.02em}
header.brand span.dot{width:12px;height:12px;border-radius:50%;background:#0A84FF;display:inline-block}
.card{background:#fff;border-radius:14px;box-shadow:0 1px 3px rgba(0,0,0,.08);padding:22px 24px;margin-bottom:16px}
h1{font-size:24px;margin:0 0 6px}
h2{font-size:17px;margin:0 0 10px}
p.muted,.muted{color:#6e6e73}
a{color:#0A84FF;text-decoration:none}
a:hover{text-decoration:underline}
ul.plain{list-style:none;margin:0;padding:0}
ul.plain li{padding:10px 0;border-top:1px solid #ececf0;display:flex;gap:12px;align-items:center}
ul.plain li:first-child{border-top:none}
.swatch{width:10px;height:34px;border-radius:3px;flex:none}
.grow{flex:1}
.pill{display:inline-block;padding:1px 8px;border-radius:10px;background:#ececf0;color:#3a3a3c;font-size:12px}
.pill.cancelled{background:#ffe5e3;color:#c4281c}.pill.pending{background:#fff4d6;color:#8a6100}
.code{font:600 30px/1.2 ui-monospace,"DejaVu Sans Mono",monospace;letter-spacing:.12em;margin:14px 0}
form label{display:block;font-weight:600;margin:14px 0 4px}
input[type=text],input[type=email],textarea{width:100%;padding:9px 11px;border:1px solid #d2d2d7;border-radius:8px;font:inherit}
textarea{min-height:70px}
fieldset{border:none;margin:0;padding:0}
.day{margin:12px 0 4px;font-weight:600}
.slots{display:flex;flex-wrap:wrap;gap:8px}
.slots label{display:inline-block;margin:0;font-weight:500}
.slots input{position:absolute;opacity:0}
.slots span{display:inline-block;padding:6px 12px;border:1px solid #0A84FF;border-radius:8px;color:#0A84FF;cursor:pointer}
.slots input:checked+span{background:#0A84FF;color:#fff}
button{margin-top:18px;background:#0A84FF;color:#fff;border:none;border-radius:8px;padding:10px 18px;font:600 15px system-ui,sans-serif;cursor:pointer}
.error{background:#ffe5e3;color:#c4281c;border-radius:8px;padding:10px 12px;margin-bottom:12px}
.ok{color:#248a3d}
.stats{display:grid;grid-template-columns:repeat(4,1fr);gap:12px}
.stat{background:#fff;border-radius:14px;box-shadow:0 1px 3px rgba(0,0,0,.08);padding:14px 16px}
.stat b{display:block;font-size:24px}
.bar{height:10px;border-radius:5px;background:#0A84FF;opacity:.55}
)"_s;

} // namespace

QString escape(const QString &text)
{
    QString out;
    out.reserve(text.size());
    for (const QChar c : text) {
        switch (c.unicode()) {
        case u'&':
            out += u"&amp;"_s;
            break;
        case u'<':
            out += u"&lt;"_s;
            break;
        case u'>':
            out += u"&gt;"_s;
            break;
        case u'"':
            out += u"&quot;"_s;
            break;
        case u'\'':
            out += u"&#39;"_s;
            break;
        default:
            out += c;
        }
    }
    return out;
}

QString page(const QString &title, const QString &body)
{
    return u"<!DOCTYPE html>\n<html lang=\"en\"><head><meta charset=\"utf-8\">"
           "<meta name=\"viewport\" content=\"width=device-width,initial-scale=1\">"
           "<title>%1 · Quorvane</title><style>%2</style></head>\n<body><main>"
           "<header class=\"brand\"><span class=\"dot\"></span>Quorvane</header>\n%3\n</main></body></html>\n"_s.arg(
               escape(title), styleSheet, body);
}

QString dateTime(const Instant &instant, const QTimeZone &zone)
{
    return instant.toTimeZone(zone).toString(u"ddd d MMM, HH:mm"_s);
}

QString day(const Instant &instant, const QTimeZone &zone)
{
    return instant.toTimeZone(zone).toString(u"dddd d MMMM"_s);
}

QString time(const Instant &instant, const QTimeZone &zone)
{
    return instant.toTimeZone(zone).toString(u"HH:mm"_s);
}

QString zoneLabel(const QTimeZone &zone, const Instant &at)
{
    const QString id = QString::fromUtf8(zone.id());
    const QString abbreviation = zone.abbreviation(at);
    return abbreviation.isEmpty() || abbreviation == id ? id : u"%1 (%2)"_s.arg(id, abbreviation);
}

} // namespace quorvane::sandbox::Html
