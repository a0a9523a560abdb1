#include "polls/PollListModel.h"

#include "polls/Polls.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(PollListModel)
};
} // namespace

PollListModel::PollListModel(QObject *parent)
    : AppListModel({&AppModel::snapshotChanged, &AppModel::preferencesChanged}, parent)
{}

void PollListModel::rebuild()
{
    mergeRows(m_polls, app() ? app()->snapshot().polls : QList<Poll>(), [](const Poll &p) { return p.id; });
}

int PollListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_polls.size());
}

QVariant PollListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Poll &p = m_polls.at(index.row());
    switch (role) {
    case IdRole:
        return p.id;
    case Qt::DisplayRole:
    case TitleRole:
        return p.title;
    case MinutesRole:
        return Text::tr("%1 min").arg(p.minutes);
    case VotersRole:
        return Polls::votersLine(p.voters);
    case DeleteTitleRole:
        return Text::tr("Delete \u201C%1\u201D?").arg(p.title);
    default:
        return {};
    }
}

QHash<int, QByteArray> PollListModel::roleNames() const
{
    return {{IdRole, "pollId"},
            {TitleRole, "title"},
            {MinutesRole, "minutes"},
            {VotersRole, "voters"},
            {DeleteTitleRole, "deleteTitle"}};
}

QString PollListModel::url(const Poll &poll) const
{
    return Polls::url(app()->baseURL().toString(), poll);
}

void PollListModel::copyLink(int row)
{
    if (!app() || row < 0 || row >= m_polls.size())
        return;
    app()->copy(url(m_polls.at(row)));
    app()->toast(Text::tr("Poll link copied"));
}

void PollListModel::open(int row)
{
    if (!app() || row < 0 || row >= m_polls.size())
        return;
    const QUrl link(url(m_polls.at(row)), QUrl::StrictMode);
    if (link.isValid())
        app()->openURL(link);
}

void PollListModel::deletePoll(int row)
{
    if (app() && row >= 0 && row < m_polls.size())
        app()->deletePoll(m_polls.at(row));
}

} // namespace quorvane
