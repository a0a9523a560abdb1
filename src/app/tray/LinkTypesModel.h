#pragma once

#include "EventType.h"

#include <QAbstractListModel>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

class AppModel;

// The active event types as one-click "copy my link" buttons, in the host's order.
class LinkTypesModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quorvane::AppModel *app READ app WRITE setApp NOTIFY appChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role {
        TitleRole = Qt::UserRole + 1,
        MinutesRole, // "30m"
        ColorRole,
        AccessibleNameRole, // "Copy Intro call link"
    };
    Q_ENUM(Role)

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] AppModel *app() const { return m_app; }
    void setApp(AppModel *app);
    [[nodiscard]] int count() const { return int(m_types.size()); }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    // Puts the type's public link on the clipboard; the model shows the toast.
    Q_INVOKABLE void copy(int row);

Q_SIGNALS:
    void appChanged();
    void countChanged();

private:
    void reload();

    QPointer<AppModel> m_app;
    QList<EventType> m_types;
};

} // namespace quorvane
