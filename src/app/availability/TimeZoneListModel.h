#pragma once

#include <QAbstractListModel>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

// The system's time zones (IANA names), sorted, shown with blanks for underscores, narrowed
// by what the user types by the case rules of the user's language.
class TimeZoneListModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged)
    Q_PROPERTY(int count READ rowCount NOTIFY queryChanged)

public:
    enum Role { ZoneRole = Qt::UserRole + 1, NameRole };
    Q_ENUM(Role)

    explicit TimeZoneListModel(QObject *parent = nullptr);
    // For tests: a list of zones instead of the system's.
    TimeZoneListModel(QStringList zones, QObject *parent);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    [[nodiscard]] const QString &query() const { return m_query; }
    void setQuery(const QString &query);

    // The row of a zone among those shown, or -1: a zone the system doesn't know has none.
    Q_INVOKABLE int indexOf(const QString &zone) const;
    Q_INVOKABLE QString zoneAt(int row) const;

    [[nodiscard]] static QStringList systemZones();

Q_SIGNALS:
    void queryChanged();

private:
    void filter();

    QStringList m_zones;
    QStringList m_names; // with blanks
    QList<int> m_shown;  // indexes into m_zones
    QString m_query;
};

} // namespace quorvane
