#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

// The application's windows as the screens reach them: any screen, the tray popover or a
// second launch asks for a window by its id ("main", "share", "onboarding", "about",
// "settings"), and the shell's QML, which owns the windows, opens or raises it.
class ShellController : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the application and reached as Shell.")

public:
    using QObject::QObject;

    // Brings the app to the front and opens (or raises) the window with that id.
    Q_INVOKABLE void open(const QString &windowId) { Q_EMIT openRequested(windowId); }
    // Ends the process: the tray's "Quit Quorvane".
    Q_INVOKABLE void quit() { Q_EMIT quitRequested(); }

Q_SIGNALS:
    void openRequested(const QString &windowId);
    void quitRequested();
};

} // namespace quorvane
