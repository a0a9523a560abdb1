#pragma once

#include "model/AppViewModel.h"

#include <QColor>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

class AppModel;

// The main window's frame for QML: window title and subtitle, the account footer, and
// whether the sign-in hero stands in for the screens.
// Re-reads the model whenever something these depend on changes, and at each minute tick.
class MainWindowModel : public AppViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString symbol READ symbol NOTIFY changed)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY changed)
    Q_PROPERTY(QString initials READ initials NOTIFY changed)
    Q_PROPERTY(QString accountName READ accountName NOTIFY changed)
    Q_PROPERTY(QString statusText READ statusText NOTIFY changed)
    Q_PROPERTY(QColor statusColor READ statusColor NOTIFY changed)
    // Nobody signed in and nothing cached: the sign-in hero takes the place of every screen.
    // With a cached account the data stay on screen even without a token.
    Q_PROPERTY(bool showsSignInHero READ showsSignInHero NOTIFY changed)

public:
    explicit MainWindowModel(QObject *parent = nullptr);

    [[nodiscard]] QString title() const;
    [[nodiscard]] QString symbol() const;
    [[nodiscard]] QString subtitle() const;
    [[nodiscard]] QString initials() const;
    [[nodiscard]] QString accountName() const;
    [[nodiscard]] QString statusText() const;
    [[nodiscard]] QColor statusColor() const;
    [[nodiscard]] bool showsSignInHero() const;

private:
};

} // namespace quorvane
