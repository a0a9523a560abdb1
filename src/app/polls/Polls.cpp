#include "polls/Polls.h"

#include <QCoreApplication>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace quorvane::Polls {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(Polls)
};
} // namespace

QString url(const QString &base, const Poll &poll)
{
    return base + u"/poll/"_s + poll.id;
}

int top(const Poll &poll)
{
    if (poll.options.isEmpty())
        return 1;
    const auto most = std::max_element(poll.options.cbegin(), poll.options.cend(),
                                       [](const Poll::Option &a, const Poll::Option &b) { return a.votes < b.votes; });
    return most->votes;
}

double barShare(int votes, int top)
{
    return top > 0 ? double(votes) / double(top) : 0.0;
}

bool leads(int votes, int top)
{
    return top >= 1 && votes == top;
}

QString votersLine(const QStringList &voters)
{
    return voters.isEmpty() ? Text::tr("No votes yet") : Text::tr("Voters: %1").arg(voters.join(u", "_s));
}

QString defaultType(const QList<EventType> &activeTypes)
{
    const auto halfHour =
        std::find_if(activeTypes.cbegin(), activeTypes.cend(), [](const EventType &t) { return t.minutes == 30; });
    if (halfHour != activeTypes.cend())
        return halfHour->slug;
    return activeTypes.isEmpty() ? QString() : activeTypes.first().slug;
}

} // namespace quorvane::Polls
