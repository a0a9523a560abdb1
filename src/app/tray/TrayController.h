#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickWindow>
#include <QRect>

class QQmlEngine;

namespace quorvane {

class AppModel;
class TrayIcon;

// The tray icon and its popover window. A click on the icon opens the popover against it (or
// by the pointer where the tray gives no geometry) and a second click closes it; the popover
// closes itself when it loses focus. Without a tray host nothing shows, and the application
// lives in its windows.
class TrayController : public QObject
{
    Q_OBJECT

public:
    // The engine must already know the App and Shell singletons.
    TrayController(QQmlEngine &engine, AppModel &model, QObject *parent = nullptr);
    ~TrayController() override;

    [[nodiscard]] TrayIcon &icon() const { return *m_icon; }
    // Made at the first click, so a session that never opens it doesn't pay for it.
    [[nodiscard]] QQuickWindow *popover() const { return m_popover; }

    // A new popover window on that engine, hidden, owned by the caller; null (with the engine's
    // warnings) when its QML fails to load. The screenshot renderer draws it the same way.
    [[nodiscard]] static QQuickWindow *createPopover(QQmlEngine &engine);

    void togglePopover(const QRect &iconGeometry);
    void openPopover(const QRect &iconGeometry);

private:
    QQuickWindow *ensurePopover();

    QQmlEngine &m_engine;
    TrayIcon *m_icon = nullptr;
    QPointer<QQuickWindow> m_popover;
};

} // namespace quorvane
