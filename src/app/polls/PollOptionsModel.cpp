#include "polls/PollOptionsModel.h"

#include "Formats.h"
#include "polls/Polls.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(PollOptionsModel)
};
} // namespace

PollOptionsModel::PollOptionsModel(QObject *parent)
    : AppListModel({&AppModel::snapshotChanged}, parent)
{}

void PollOptionsModel::setPollId(const QString &id)
{
    if (id == m_pollId)
        return;
    m_pollId = id;
    rebuild();
    Q_EMIT pollIdChanged();
}

void PollOptionsModel::rebuild()
{
    QList<Row> next;
    if (app()) {
        for (const Poll &poll : app()->snapshot().polls) {
            if (poll.id != m_pollId)
                continue;
            const int top = Polls::top(poll);
            for (const Poll::Option &option : poll.options)
                next.append(Row{option, top});
        }
    }
    replaceRows(m_rows, std::move(next));
}

int PollOptionsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant PollOptionsModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid) || !app())
        return {};
    const Row &row = m_rows.at(index.row());
    const auto time = [&] {
        return Formats::format(row.option.start, u"EEEMMMdjmm"_s, app()->locale(), app()->zone());
    };
    switch (role) {
    case Qt::DisplayRole:
    case TimeRole:
        return time();
    case VotesRole:
        return row.option.votes;
    case ShareRole:
        return Polls::barShare(row.option.votes, row.top);
    case LeadsRole:
        return Polls::leads(row.option.votes, row.top);
    case AccessibleRole:
        return Text::tr("%1, %n vote(s)", nullptr, row.option.votes).arg(time());
    default:
        return {};
    }
}

QHash<int, QByteArray> PollOptionsModel::roleNames() const
{
    return {{TimeRole, "time"},
            {VotesRole, "votes"},
            {ShareRole, "share"},
            {LeadsRole, "leads"},
            {AccessibleRole, "accessibleText"}};
}

} // namespace quorvane
