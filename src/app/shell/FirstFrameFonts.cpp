#include "shell/FirstFrameFonts.h"

#include <QFontMetricsF>
#include <QGuiApplication>

using namespace Qt::StringLiterals;

namespace quorvane::FirstFrameFonts {

QList<Style> styles()
{
    // Sizes as Typography names them: caption2 10, caption 11, callout 12, headline and body
    // 13, title3 16, title 22.
    return {
        {0, QFont::Normal},    {0, QFont::DemiBold},  {10, QFont::Normal},   {11, QFont::Normal},
        {12, QFont::Normal},   {11, QFont::DemiBold}, {12, QFont::DemiBold}, {13, QFont::DemiBold},
        {16, QFont::DemiBold}, {22, QFont::DemiBold}, {10, QFont::Bold},     {11, QFont::Bold},
        {13, QFont::Bold},     {16, QFont::Bold},
    };
}

namespace {
// The application's font in that style.
QFont font(const Style &style)
{
    QFont font = QGuiApplication::font();
    if (style.pixelSize > 0)
        font.setPixelSize(style.pixelSize);
    font.setWeight(style.weight);
    return font;
}
} // namespace

void load(const Style &style)
{
    (void)QFontMetricsF(font(style)).height(); // asks for the font's engine
}

void measure(const Style &style)
{
    // Printable ASCII, and the dashes, quotes and dots the interface writes with.
    static const QString characters = [] {
        QString out;
        for (char16_t c = u' '; c <= u'~'; ++c)
            out.append(QChar(c));
        return out + u"\u2013\u2014\u2019\u201C\u201D\u2026\u00B7\u2022"_s;
    }();
    (void)QFontMetricsF(font(style)).horizontalAdvance(characters);
}

} // namespace quorvane::FirstFrameFonts
