#include "tray/TrayController.h"

#include "shell/ViewTable.h"
#include "tray/PopoverPlacement.h"
#include "tray/TrayIcon.h"

#include <QCursor>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace quorvane {

TrayController::TrayController(QQmlEngine &engine, AppModel &model, QObject *parent)
    : QObject(parent)
    , m_engine(engine)
    , m_icon(new TrayIcon(model, this))
{
    connect(m_icon, &TrayIcon::clicked, this, &TrayController::togglePopover);
}

TrayController::~TrayController()
{
    delete m_popover;
}

QQuickWindow *TrayController::createPopover(QQmlEngine &engine)
{
    const QmlType type = ViewTable::popover();
    QQmlComponent component(&engine);
    component.setData(type.document(), QUrl(u"qrc:/quorvane/views/popover.qml"_s));
    QObject *made = component.create();
    auto *window = qobject_cast<QQuickWindow *>(made);
    if (!window) {
        delete made;
        return nullptr;
    }
    window->setObjectName(u"popover"_s);
    QQmlEngine::setObjectOwnership(window, QQmlEngine::CppOwnership);
    return window;
}

QQuickWindow *TrayController::ensurePopover()
{
    if (!m_popover)
        m_popover = createPopover(m_engine);
    return m_popover;
}

void TrayController::togglePopover(const QRect &iconGeometry)
{
    if (m_popover && m_popover->isVisible())
        m_popover->hide();
    else
        openPopover(iconGeometry);
}

void TrayController::openPopover(const QRect &iconGeometry)
{
    QQuickWindow *window = ensurePopover();
    if (!window)
        return;
    const QPoint cursor = QCursor::pos();
    const QPoint anchor = iconGeometry.isEmpty() ? cursor : iconGeometry.center();
    QScreen *screen = QGuiApplication::screenAt(anchor);
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    window->setScreen(screen);
    window->setPosition(PopoverPlacement::topLeft(iconGeometry, cursor, window->size(), screen->availableGeometry()));
    window->show();
    window->raise();
    window->requestActivate();
}

} // namespace quorvane
