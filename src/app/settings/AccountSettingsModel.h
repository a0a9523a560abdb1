#pragma once

#include "model/AppViewModel.h"

#include <QUrl>

namespace quorvane {

// The Account pane: who is signed in, their booking page, the web dashboard and signing out.
class AccountSettingsModel : public AppViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool signedIn READ signedIn NOTIFY changed)
    Q_PROPERTY(QString name READ name NOTIFY changed) // "—" without one
    Q_PROPERTY(QString email READ email NOTIFY changed)
    Q_PROPERTY(QString pageLink READ pageLink NOTIFY changed)

public:
    explicit AccountSettingsModel(QObject *parent = nullptr);

    [[nodiscard]] bool signedIn() const;
    [[nodiscard]] QString name() const;
    [[nodiscard]] QString email() const;
    [[nodiscard]] QString pageLink() const;
    // The booking page as a link: the page's text as a URL, or the server where it makes none.
    [[nodiscard]] QUrl pageURL() const;

    Q_INVOKABLE void openPage() const;
    Q_INVOKABLE void openDashboard() const;
    Q_INVOKABLE void signOut() const;
    // Return in "Server URL": everything again from the server now named.
    Q_INVOKABLE void serverEntered() const;
};

} // namespace quorvane
