#pragma once

#include "model/AppViewModel.h"

#include "tray/PopoverContent.h"

#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

class AppModel;

// What the tray popover shows: the date in its header and which of its parts appear.
class MenuBarViewModel : public AppViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString dateText READ dateText NOTIFY changed)
    Q_PROPERTY(bool showsSignIn READ showsSignIn NOTIFY changed)
    Q_PROPERTY(bool showsBanner READ showsBanner NOTIFY changed)
    Q_PROPERTY(bool showsToast READ showsToast NOTIFY changed)

public:
    explicit MenuBarViewModel(QObject *parent = nullptr);

    // Today as "Tuesday, Mar 10" in the user's locale and zone.
    [[nodiscard]] QString dateText() const { return m_dateText; }
    [[nodiscard]] bool showsSignIn() const { return m_content.signIn; }
    [[nodiscard]] bool showsBanner() const { return m_content.banner; }
    [[nodiscard]] bool showsToast() const { return m_content.toast; }

private:
    void recompute() override;

    PopoverContent m_content;
    QString m_dateText;
};

} // namespace quorvane
