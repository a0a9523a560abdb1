#pragma once

#include "model/AppListModel.h"

#include "Poll.h"

namespace quorvane {

// The host's polls as cards, in the snapshot's order, with what a card's buttons do.
class PollListModel : public AppListModel
{
    Q_OBJECT
    QML_ELEMENT

public:
    enum Role {
        IdRole = Qt::UserRole + 1,
        TitleRole,
        MinutesRole,     // "30 min"
        VotersRole,      // "Voters: Ann, Ben" or "No votes yet"
        DeleteTitleRole, // the confirmation's title: "Delete “Q2 planning”?"
    };
    Q_ENUM(Role)

    explicit PollListModel(QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    // The poll's public link on the clipboard, with a toast.
    Q_INVOKABLE void copyLink(int row);
    // The poll's public page in the browser.
    Q_INVOKABLE void open(int row);
    // Deletes on the server; the caller has asked first.
    Q_INVOKABLE void deletePoll(int row);

protected:
    void rebuild() override;

private:
    [[nodiscard]] QString url(const Poll &poll) const;

    QList<Poll> m_polls;
};

} // namespace quorvane
