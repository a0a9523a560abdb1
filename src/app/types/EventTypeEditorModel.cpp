#include "types/EventTypeEditorModel.h"

#include "components/HexColor.h"
#include "types/EventTypes.h"

#include "Palette.h"

#include <QCoreApplication>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(EventTypeEditorModel)
};
} // namespace

EventTypeEditorModel::EventTypeEditorModel(QObject *parent)
    : AppViewModel({&AppModel::snapshotChanged, &AppModel::preferencesChanged}, parent)
{}

void EventTypeEditorModel::setTypeId(const QString &id)
{
    if (m_loaded || id == m_typeId)
        return;
    m_typeId = id;
    reload();
}

void EventTypeEditorModel::recompute()
{
    // The working copy is taken once, from the draft as it stands when the editor is made.
    if (m_loaded || !m_app || m_typeId.isEmpty())
        return;
    const std::optional<HostSettings> &draft = m_app->draftSettings();
    if (!draft)
        return;
    for (const EventType &t : draft->eventTypes) {
        if (t.id == m_typeId) {
            m_t = t;
            m_loaded = true;
            return;
        }
    }
}

template <typename Edit>
void EventTypeEditorModel::change(Edit edit)
{
    if (!m_loaded)
        return;
    const EventType before = m_t;
    edit(m_t);
    if (m_t == before)
        return;
    Q_EMIT changed();
    if (!m_app)
        return;
    const std::optional<HostSettings> &draft = m_app->draftSettings();
    const bool present = draft
                         && std::any_of(draft->eventTypes.cbegin(), draft->eventTypes.cend(),
                                        [this](const EventType &t) { return t.id == m_t.id; });
    if (present)
        m_app->editSettings([t = m_t](HostSettings &s) { EventTypes::replace(s, t); });
}

void EventTypeEditorModel::setTitle(const QString &value)
{
    change([&](EventType &t) { t.title = value; });
}

void EventTypeEditorModel::setActive(bool value)
{
    change([&](EventType &t) { t.isActive = value; });
}

void EventTypeEditorModel::setColorHex(const QString &value)
{
    change([&](EventType &t) { t.colorHex = value; });
}

QColor EventTypeEditorModel::color() const
{
    return HexColor::parse(m_t.colorHex);
}

void EventTypeEditorModel::setColor(const QColor &value)
{
    setColorHex(HexColor::string(value));
}

void EventTypeEditorModel::setDescription(const QString &value)
{
    change([&](EventType &t) { t.description = value; });
}

void EventTypeEditorModel::setSlug(const QString &typed)
{
    const QString slug = EventTypes::slugAfterTyping(typed);
    change([&](EventType &t) { t.slug = slug; });
    // The field shows what was typed until told otherwise, also when the rewrite comes back
    // to the slug as it was ("intro!" is "intro" again).
    if (slug != typed)
        Q_EMIT changed();
}

QString EventTypeEditorModel::handlePrefix() const
{
    const std::optional<Account> account = m_app ? m_app->account() : std::nullopt;
    return u'/' + (account ? account->handle.value_or(QString()) : QString()) + u'/';
}

QString EventTypeEditorModel::link() const
{
    return m_app ? m_app->link(m_t) : QString();
}

void EventTypeEditorModel::setMinutes(int value)
{
    change([&](EventType &t) { t.minutes = value; });
}

QStringList EventTypeEditorModel::durationLabels() const
{
    QStringList out;
    for (const int n : EventTypes::durations(m_t.minutes))
        out.append(Text::tr("%1 min").arg(n));
    return out;
}

int EventTypeEditorModel::durationIndex() const
{
    return int(EventTypes::durations(m_t.minutes).indexOf(m_t.minutes));
}

void EventTypeEditorModel::setDurationIndex(int index)
{
    const QList<int> durations = EventTypes::durations(m_t.minutes);
    if (index >= 0 && index < durations.size())
        setMinutes(durations.at(index));
}

void EventTypeEditorModel::setBufferBefore(int value)
{
    change([&](EventType &t) { t.bufferBefore = value; });
}

void EventTypeEditorModel::setBufferAfter(int value)
{
    change([&](EventType &t) { t.bufferAfter = value; });
}

int EventTypeEditorModel::location() const
{
    return int(Location::allCases().indexOf(m_t.location));
}

void EventTypeEditorModel::setLocation(int index)
{
    const QList<MeetingLocation> all = Location::allCases();
    // The detail stays when its field hides: going back shows it again.
    if (index >= 0 && index < all.size())
        change([&](EventType &t) { t.location = all.at(index); });
}

QStringList EventTypeEditorModel::locationLabels()
{
    QStringList out;
    for (const MeetingLocation l : Location::allCases())
        out.append(Location::label(l));
    return out;
}

QStringList EventTypeEditorModel::locationSymbols()
{
    QStringList out;
    for (const MeetingLocation l : Location::allCases())
        out.append(Location::symbol(l));
    return out;
}

void EventTypeEditorModel::setLocationDetail(const QString &value)
{
    change([&](EventType &t) { t.locationDetail = value; });
}

QString EventTypeEditorModel::detailPrompt() const
{
    return EventTypes::detailPrompt(m_t.location);
}

QString EventTypeEditorModel::locationNote() const
{
    return EventTypes::locationNote(m_t.location);
}

void EventTypeEditorModel::setNewQuestion(const QString &value)
{
    if (value == m_newQuestion)
        return;
    m_newQuestion = value;
    Q_EMIT changed();
}

bool EventTypeEditorModel::canAddQuestion() const
{
    return m_loaded && EventTypes::canAddQuestion(m_newQuestion, m_t.questions);
}

QStringList EventTypeEditorModel::paletteColors()
{
    return Palette::colors();
}

void EventTypeEditorModel::addQuestion()
{
    if (!canAddQuestion())
        return;
    const QString question = EventTypes::trimmedQuestion(m_newQuestion);
    m_newQuestion.clear();
    change([&](EventType &t) { t.questions.append(question); });
}

void EventTypeEditorModel::removeQuestion(int index)
{
    if (index >= 0 && index < m_t.questions.size())
        change([&](EventType &t) { t.questions.removeAt(index); });
}

void EventTypeEditorModel::copyLink()
{
    if (m_app && m_loaded)
        m_app->copyLink(m_t);
}

void EventTypeEditorModel::open()
{
    if (!m_app || !m_loaded)
        return;
    const QUrl url(m_app->link(m_t), QUrl::StrictMode);
    if (url.isValid())
        m_app->openURL(url);
}

} // namespace quorvane
