#pragma once

#include "EventType.h"

#include <QAbstractListModel>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

class AppModel;

// The sidebar's "Share links": one row per active event type, each copying its public link.
// Rebuilt when the snapshot or the server address changes.
class ShareLinkModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quorvane::AppModel *app READ app WRITE setApp NOTIFY appChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role {
        SlugRole = Qt::UserRole + 1,
        TitleRole,
        ColorRole, // QColor of the type
        LinkRole,
        ToolTipRole,    // "Copy {link}"
        AccessibleRole, // "Copy link for {title}"
    };
    Q_ENUM(Role)

    explicit ShareLinkModel(QObject *parent = nullptr);

    [[nodiscard]] AppModel *app() const { return m_app; }
    void setApp(AppModel *app);
    [[nodiscard]] int count() const { return int(m_types.size()); }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    // Puts the row's link on the clipboard, with the model's toast.
    Q_INVOKABLE void copyLink(int row);

Q_SIGNALS:
    void appChanged();
    void countChanged();

private:
    void reload();

    QPointer<AppModel> m_app;
    QList<EventType> m_types;
};

} // namespace quorvane
