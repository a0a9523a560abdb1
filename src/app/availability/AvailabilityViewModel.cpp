#include "availability/AvailabilityViewModel.h"

#include "NLAvailability.h"
#include "WeekSentence.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(AvailabilityViewModel)
};
} // namespace

using Availability::Mode;

AvailabilityViewModel::AvailabilityViewModel(QObject *parent)
    : AppViewModel({&AppModel::draftSettingsChanged, &AppModel::firstLoadDoneChanged}, parent)
{}

AvailabilityViewModel::State AvailabilityViewModel::state() const
{
    if (m_app && m_app->draftSettings())
        return Editor;
    return m_app && m_app->firstLoadDone() ? SignedOut : Loading;
}

void AvailabilityViewModel::setMode(int mode)
{
    const Mode next = mode == int(Mode::focus) ? Mode::focus : Mode::hours;
    if (next == m_mode)
        return;
    m_mode = next;
    Q_EMIT modeChanged();
}

QStringList AvailabilityViewModel::modeTitles() const
{
    return {Availability::modeTitle(Mode::hours), Availability::modeTitle(Mode::focus)};
}

QString AvailabilityViewModel::header() const
{
    return m_app && m_app->draftSettings() ? Availability::header(*m_app->draftSettings()) : QString();
}

QString AvailabilityViewModel::description() const
{
    return m_app && m_app->draftSettings() ? WeekSentence::describe(m_app->draftSettings()->availability) : QString();
}

void AvailabilityViewModel::setNl(const QString &text)
{
    if (text == m_nl)
        return;
    m_nl = text;
    m_nlPreview = NLAvailability::parse(text);
    Q_EMIT nlChanged();
}

QString AvailabilityViewModel::preview() const
{
    return Availability::previewLine(m_nlPreview, m_app ? m_app->locale() : QString());
}

QStringList AvailabilityViewModel::hourMarks() const
{
    QStringList marks;
    for (int hour = Availability::Grid::firstHour; hour < Availability::Grid::endHour; ++hour)
        marks << AvailabilityMath::label(hour * 60);
    return marks;
}

bool AvailabilityViewModel::apply()
{
    if (m_nlPreview.isEmpty() || !m_app)
        return false;
    m_app->editSettings([days = m_nlPreview](HostSettings &s) { Availability::applyDays(s, days); });
    m_nl.clear();
    m_nlPreview.clear();
    Q_EMIT nlChanged();
    m_app->toast(Text::tr("Availability updated"));
    return true;
}

} // namespace quorvane
