#pragma once

#include "shell/AppWindow.h"
#include "shell/QmlType.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QQmlComponent>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

// The application's windows as the screens reach them: any screen, the tray popover or a
// second launch asks for a window by its id, and the shell's QML, which owns the windows,
// opens or raises it. It also makes the QML of each view the view table names, so screens
// and windows reach each other through declared imports rather than file paths.
class ShellController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the application and reached as Shell.")
    Q_PROPERTY(bool startHidden READ startHidden CONSTANT)
    // The settings pane asked for last ("updates"), which the settings window turns to.
    Q_PROPERTY(QString settingsPane READ settingsPane NOTIFY settingsPaneRequested)

public:
    using QObject::QObject;

    // Set before the QML loads: the app starts in the tray, with the main window not shown.
    [[nodiscard]] bool startHidden() const { return m_startHidden; }
    void setStartHidden(bool hidden) { m_startHidden = hidden; }

    // Brings the app to the front and opens (or raises) that window.
    Q_INVOKABLE void open(quorvane::AppWindow::Id window) { Q_EMIT openRequested(window); }
    // Opens the settings window on one of its panes.
    Q_INVOKABLE void openSettings(const QString &pane)
    {
        m_settingsPane = pane;
        Q_EMIT settingsPaneRequested();
        open(AppWindow::Settings);
    }
    [[nodiscard]] const QString &settingsPane() const { return m_settingsPane; }
    // Ends the process: the tray's "Quit Quorvane".
    Q_INVOKABLE void quit() { Q_EMIT quitRequested(); }

    // The component of a section's screen, of a window, or of what fills a window, made in
    // the engine of `user` on first use; null where the view table has no row.
    Q_INVOKABLE QQmlComponent *sectionView(const QString &section, QObject *user);
    Q_INVOKABLE QQmlComponent *window(quorvane::AppWindow::Id window, QObject *user);
    Q_INVOKABLE QQmlComponent *windowContent(quorvane::AppWindow::Id window, QObject *user);
    Q_INVOKABLE QQmlComponent *newPollSheet(QObject *user);
    Q_INVOKABLE QQmlComponent *commandPalette(QObject *user);
    Q_INVOKABLE QQmlComponent *signInHero(QObject *user);

    // The component of `type` in `engine`, made once per engine and kept with it. A type that
    // doesn't compile gives a component in its error state, with the reason in errors().
    [[nodiscard]] QQmlComponent *component(QQmlEngine &engine, const QmlType &type);

Q_SIGNALS:
    void openRequested(quorvane::AppWindow::Id window);
    void quitRequested();
    void settingsPaneRequested();

private:
    [[nodiscard]] QQmlComponent *component(QObject *user, const QmlType &type);

    QHash<QString, QPointer<QQmlComponent>> m_components;
    bool m_startHidden = false;
    QString m_settingsPane;
};

} // namespace quorvane
