#pragma once

#include "model/AppListModel.h"

#include "Poll.h"

namespace quorvane {

// The times one poll offers, each with its vote count and bar, for that poll's card.
class PollOptionsModel : public AppListModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString pollId READ pollId WRITE setPollId NOTIFY pollIdChanged)

public:
    enum Role {
        TimeRole = Qt::UserRole + 1, // "Fri, Mar 13, 10:00 AM"
        VotesRole,
        ShareRole, // the bar's share of its track, 0 to 1
        LeadsRole, // drawn green
        AccessibleRole,
    };
    Q_ENUM(Role)

    explicit PollOptionsModel(QObject *parent = nullptr);

    [[nodiscard]] const QString &pollId() const { return m_pollId; }
    void setPollId(const QString &id);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void pollIdChanged();

protected:
    void rebuild() override;

private:
    struct Row {
        Poll::Option option;
        int top = 1;
        bool operator==(const Row &) const = default;
    };

    QString m_pollId;
    QList<Row> m_rows;
};

} // namespace quorvane
