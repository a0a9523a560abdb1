#include "polls/NewPollModel.h"

#include "polls/Polls.h"

namespace quorvane {

NewPollModel::NewPollModel(QObject *parent)
    : AppViewModel({}, parent)
{}

void NewPollModel::setTitle(const QString &title)
{
    if (title == m_title)
        return;
    m_title = title;
    Q_EMIT changed();
}

void NewPollModel::setType(const QString &type)
{
    if (type == m_type)
        return;
    m_type = type;
    Q_EMIT changed();
}

void NewPollModel::reset()
{
    m_title.clear();
    m_type = m_app ? Polls::defaultType(m_app->activeTypes()) : QString();
    Q_EMIT changed();
}

void NewPollModel::create()
{
    if (m_app && canCreate())
        m_app->createPoll(m_title, m_type);
}

} // namespace quorvane
