#pragma once

#include "model/AppBinding.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

// A view model that follows the application model: QML sets `app`, and whenever one of the
// signals given at construction fires, the view model recomputes and says `changed`.
class AppViewModel : public QObject
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(quorvane::AppModel *app READ app WRITE setApp NOTIFY appChanged)

public:
    [[nodiscard]] AppModel *app() const { return m_app; }
    void setApp(AppModel *app);

Q_SIGNALS:
    void appChanged();
    void changed();

protected:
    AppViewModel(QList<AppBinding::Signal> signals, QObject *parent);

    // Recomputes what the view model holds from `app` (which may be null); the default holds
    // nothing and lets each getter read the model.
    virtual void recompute() {}
    void reload();

    QPointer<AppModel> m_app;

private:
    QList<AppBinding::Signal> m_signals;
};

} // namespace quorvane
