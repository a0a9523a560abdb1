#include "components/SystemColors.h"

#include "components/HexColor.h"
#include "components/SchemePalette.h"

#include <QCoreApplication>
#include <QEvent>

namespace quorvane {

SystemColors::SystemColors(QObject *parent)
    : QObject(parent)
{
    if (QCoreApplication *app = QCoreApplication::instance())
        app->installEventFilter(this);
    update();
}

bool SystemColors::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ApplicationPaletteChange && watched == QCoreApplication::instance())
        update();
    return QObject::eventFilter(watched, event);
}

void SystemColors::update()
{
    const bool dark = SchemePalette::applicationIsDark();
    if (dark == m_dark)
        return;
    m_dark = dark;
    Q_EMIT changed();
}

QColor SystemColors::fromHex(const QString &hex)
{
    return HexColor::parse(hex);
}

} // namespace quorvane
