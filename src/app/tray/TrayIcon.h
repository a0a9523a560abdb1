#pragma once

#include <QIcon>
#include <QObject>
#include <QRect>
#include <QSystemTrayIcon>

namespace quorvane {

class AppModel;

// The application's face in the system tray: a calendar icon, or the countdown to the next
// meeting painted into the icon where it fits, and the full title in the tooltip. Follows the
// model's minute tick, its data and the user's preference.
class TrayIcon : public QObject
{
    Q_OBJECT

public:
    explicit TrayIcon(AppModel &model, QObject *parent = nullptr);

    [[nodiscard]] QString toolTip() const { return m_tray.toolTip(); }
    [[nodiscard]] const QString &iconText() const { return m_iconText; }
    [[nodiscard]] QRect geometry() const { return m_tray.geometry(); }
    [[nodiscard]] bool isVisible() const { return m_tray.isVisible(); }

    // The icon at the sizes trays ask for. An empty text, or one too long for the smaller
    // sizes, shows the calendar symbol there instead.
    [[nodiscard]] static QIcon render(const QString &text);

Q_SIGNALS:
    // The user clicked the icon; `geometry` is where the tray shows it, empty where the tray
    // doesn't say (Wayland).
    void clicked(const QRect &geometry);

private:
    void update();

    AppModel &m_model;
    QSystemTrayIcon m_tray;
    QString m_iconText;
};

} // namespace quorvane
