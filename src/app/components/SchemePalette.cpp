#include "components/SchemePalette.h"

#include <QGuiApplication>

namespace quorvane::SchemePalette {

namespace {

struct Role {
    QPalette::ColorRole role;
    QRgb active;
    QRgb disabled;
};

QPalette make(std::initializer_list<Role> roles)
{
    QPalette palette;
    for (const Role &r : roles) {
        palette.setColor(QPalette::Active, r.role, QColor::fromRgb(r.active));
        palette.setColor(QPalette::Inactive, r.role, QColor::fromRgb(r.active));
        palette.setColor(QPalette::Disabled, r.role, QColor::fromRgb(r.disabled));
    }
    return palette;
}

} // namespace

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

bool applicationIsDark()
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance()) && isDark(QGuiApplication::palette());
}

QPalette dark()
{
    // Fields and lists sit a step below the window, buttons a step above it.
    return make({
        {QPalette::Window, 0x242427, 0x242427},      {QPalette::WindowText, 0xE6E6E9, 0x707075},
        {QPalette::Base, 0x1B1B1D, 0x1F1F21},        {QPalette::AlternateBase, 0x2A2A2D, 0x2A2A2D},
        {QPalette::Text, 0xE6E6E9, 0x707075},        {QPalette::PlaceholderText, 0x8C8C91, 0x5C5C60},
        {QPalette::Button, 0x333337, 0x2A2A2D},      {QPalette::ButtonText, 0xE6E6E9, 0x707075},
        {QPalette::BrightText, 0xFFFFFF, 0xFFFFFF},  {QPalette::Light, 0x4C4C51, 0x3A3A3E},
        {QPalette::Midlight, 0x3C3C40, 0x333337},    {QPalette::Mid, 0x2E2E32, 0x2A2A2D},
        {QPalette::Dark, 0x151517, 0x151517},        {QPalette::Shadow, 0x000000, 0x000000},
        {QPalette::Highlight, 0x2A6FD1, 0x3A3A3E},   {QPalette::HighlightedText, 0xFFFFFF, 0x9A9A9F},
        {QPalette::Link, 0x5AA9FF, 0x5A7A9F},        {QPalette::LinkVisited, 0xC58AF5, 0x8A6AA5},
        {QPalette::ToolTipBase, 0x333337, 0x333337}, {QPalette::ToolTipText, 0xE6E6E9, 0x9A9A9F},
    });
}

QPalette light()
{
    return make({
        {QPalette::Window, 0xEFEFEF, 0xEFEFEF},      {QPalette::WindowText, 0x000000, 0xBEBEBE},
        {QPalette::Base, 0xFFFFFF, 0xEFEFEF},        {QPalette::AlternateBase, 0xF7F7F7, 0xF7F7F7},
        {QPalette::Text, 0x000000, 0xBEBEBE},        {QPalette::PlaceholderText, 0x808080, 0xBEBEBE},
        {QPalette::Button, 0xEFEFEF, 0xEFEFEF},      {QPalette::ButtonText, 0x000000, 0xBEBEBE},
        {QPalette::BrightText, 0xFFFFFF, 0xFFFFFF},  {QPalette::Light, 0xFFFFFF, 0xFFFFFF},
        {QPalette::Midlight, 0xCACACA, 0xCACACA},    {QPalette::Mid, 0xB8B8B8, 0xB8B8B8},
        {QPalette::Dark, 0x9F9F9F, 0xBEBEBE},        {QPalette::Shadow, 0x767676, 0xB1B1B1},
        {QPalette::Highlight, 0x308CC6, 0x919191},   {QPalette::HighlightedText, 0xFFFFFF, 0xFFFFFF},
        {QPalette::Link, 0x0000FF, 0x0000FF},        {QPalette::LinkVisited, 0xFF00FF, 0xFF00FF},
        {QPalette::ToolTipBase, 0xFFFFDC, 0xFFFFDC}, {QPalette::ToolTipText, 0x000000, 0x000000},
    });
}

QPalette choose(ColorScheme preference, const QPalette &platform)
{
    switch (preference) {
    case ColorScheme::dark:
        return isDark(platform) ? platform : dark();
    case ColorScheme::light:
        return isDark(platform) ? light() : platform;
    case ColorScheme::noPreference:
        break;
    }
    return platform;
}

} // namespace quorvane::SchemePalette
