#pragma once

#include "model/AppListModel.h"

#include "EventType.h"

namespace quorvane {

// The active event types in the host's order, each a one-click "copy my link": the tray's
// grid of buttons and the sidebar's "Share links". Rebuilt when the snapshot or the server
// address changes.
class TypeLinksModel : public AppListModel
{
    Q_OBJECT
    QML_ELEMENT
    // Inactive types too, for choosing among the types that bookings may carry.
    Q_PROPERTY(bool includeInactive MEMBER m_includeInactive WRITE setIncludeInactive NOTIFY includeInactiveChanged)

public:
    enum Role {
        SlugRole = Qt::UserRole + 1,
        TitleRole,
        MinutesRole, // "30m"
        ColorRole,   // QColor of the type
        LinkRole,
        ToolTipRole,             // "Copy {link}"
        AccessibleNameRole,      // "Copy link for {title}", a row that also shows the link's icon
        ShortAccessibleNameRole, // "Copy {title} link", a small button in a grid
        ChoiceRole,              // "Intro Call (15 min)", an entry of a choice of types
    };
    Q_ENUM(Role)

    explicit TypeLinksModel(QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    // Puts the row's public link on the clipboard; the model shows the toast.
    Q_INVOKABLE void copyLink(int row);

    void setIncludeInactive(bool value);

Q_SIGNALS:
    void includeInactiveChanged();

protected:
    void rebuild() override;

private:
    QList<EventType> m_types;
    bool m_includeInactive = false;
};

} // namespace quorvane
