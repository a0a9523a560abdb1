#include "share/QuickShareModel.h"

#include "polls/Polls.h"
#include "share/QuickShare.h"
#include "shell/KeyLabel.h"

#include "APIError.h"
#include "Cancelled.h"
#include "Formats.h"

#include <QApplication>
#include <QCoreApplication>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(QuickShareModel)
};
} // namespace

QuickShareModel::QuickShareModel(QObject *parent)
    : AppViewModel({&AppModel::snapshotChanged}, parent)
    , m_days(new ShareDaysModel(this))
{}

QuickShareModel::~QuickShareModel()
{
    close();
}

QStringList QuickShareModel::typeChoices() const
{
    QStringList out;
    if (m_app) {
        for (const EventType &type : m_app->activeTypes())
            out.append(QuickShare::typeChoice(type));
    }
    return out;
}

int QuickShareModel::typeIndex() const
{
    if (!m_app)
        return -1;
    const QList<EventType> types = m_app->activeTypes();
    const auto at =
        std::find_if(types.cbegin(), types.cend(), [this](const EventType &t) { return t.slug == m_typeSlug; });
    return at == types.cend() ? -1 : int(at - types.cbegin());
}

void QuickShareModel::setTypeIndex(int index)
{
    if (!m_app)
        return;
    const QList<EventType> types = m_app->activeTypes();
    if (index >= 0 && index < types.size())
        setTypeSlug(types.at(index).slug);
}

void QuickShareModel::setTypeSlug(const QString &slug)
{
    if (slug == m_typeSlug)
        return;
    m_typeSlug = slug;
    load();
}

void QuickShareModel::setZone(const QString &zone)
{
    if (zone == m_zone || zone.isEmpty())
        return;
    m_zone = zone;
    rebuildDays();
    Q_EMIT changed();
}

QString QuickShareModel::preview() const
{
    if (m_picked.isEmpty() || !m_app)
        return {};
    return QuickShare::text(m_picked, type(), m_link, m_zone, m_app->locale(), m_app->now());
}

QString QuickShareModel::hint()
{
    return Text::tr("Pick up to 3 times (best-ranked first). Press %1 to copy.").arg(copyKeyText());
}

QString QuickShareModel::copyKeyText()
{
    return KeyLabel::text(QKeySequence(QKeySequence::Copy));
}

void QuickShareModel::open()
{
    close();
    m_typeSlug.clear();
    m_slots.clear();
    m_picked.clear();
    m_error.reset();
    m_link.clear();
    m_loading = false;
    if (m_app) {
        m_zone = m_app->zone();
        QStringList guests;
        for (const Booking &booking : m_app->allBookings())
            guests.append(booking.tz);
        m_zoneChoices = QuickShare::zoneChoices(m_zone, guests);
    }
    rebuildDays();
    Q_EMIT changed();
    // The default type's change starts the fetch.
    if (m_app)
        setTypeSlug(Polls::defaultType(m_app->activeTypes()));
}

void QuickShareModel::close()
{
    if (m_fetch)
        m_fetch->cancel();
    m_fetch.reset();
    ++m_generation;
}

void QuickShareModel::load()
{
    if (m_typeSlug.isEmpty() || !m_app) {
        Q_EMIT changed();
        return;
    }
    close();
    m_loading = true;
    m_error.reset();
    setPicked({});
    Q_EMIT changed();
    QuorvaneAPI api = m_app->api();
    m_fetch = api.cancellation;
    QCoro::Task<> detached = fetch(std::move(api), m_typeSlug, m_app->zone(), m_generation);
    Q_UNUSED(detached);
}

QCoro::Task<> QuickShareModel::fetch(QuorvaneAPI api, QString slug, QString tz, quint64 generation)
{
    const QPointer<QuickShareModel> self(this);
    std::optional<SlotList> answer;
    std::optional<QString> failure;
    try {
        answer = co_await api.slots(slug, QuickShare::daysAsked, tz);
    } catch (const Cancelled &) {
        co_return;
    } catch (const APIError &error) {
        failure = error.errorDescription();
    } catch (...) {
        failure = APIError::offline().errorDescription();
    }
    // Closed, or overtaken by a later fetch: that one's answer is the one that stands.
    if (!self || generation != m_generation)
        co_return;
    m_fetch.reset();
    if (answer) {
        m_slots = answer->slots;
        m_link = QuickShare::link(answer->link, typeLink());
    } else {
        m_error = failure;
        m_link = typeLink();
    }
    m_loading = false;
    rebuildDays();
    Q_EMIT changed();
}

void QuickShareModel::toggle(int day, int chip)
{
    if (const ShareChipsModel *chips = m_days->chipsAt(day); chips && chip >= 0 && chip < chips->chips().size())
        toggle(chips->chips().at(chip).slot);
}

void QuickShareModel::toggle(const Slot &slot)
{
    QList<Slot> picked = m_picked;
    if (QuickShare::toggle(picked, slot) == QuickShare::Toggle::refused) {
        QApplication::beep();
        Q_EMIT refused();
        return;
    }
    setPicked(std::move(picked));
    Q_EMIT changed();
}

void QuickShareModel::suggestBest()
{
    if (m_slots.isEmpty())
        return;
    setPicked(QuickShare::suggestBest(m_slots, m_zone));
    Q_EMIT changed();
}

void QuickShareModel::copyLink()
{
    if (!m_app || m_link.isEmpty())
        return;
    m_app->copy(m_link);
    m_app->toast(Text::tr("Link copied"));
}

bool QuickShareModel::copyTimes()
{
    if (!m_app || m_picked.isEmpty())
        return false;
    m_app->copy(preview());
    m_app->toast(Text::tr("Times copied"));
    return true;
}

void QuickShareModel::setPicked(QList<Slot> picked)
{
    m_picked = std::move(picked);
    m_days->setPicked(m_picked);
}

void QuickShareModel::rebuildDays()
{
    const QString locale = m_app ? m_app->locale() : QString();
    const QSet<Instant> best = QuickShare::bestIDs(m_slots, m_zone);
    QList<ShareDaysModel::Day> days;
    for (const QuickShare::Day &day : QuickShare::byDay(m_slots, m_zone)) {
        ShareDaysModel::Day row;
        row.heading = Formats::format(day.slots.first().start, u"EEEEMMMd"_s, locale, m_zone);
        for (const Slot &slot : day.slots.first(std::min<qsizetype>(day.slots.size(), QuickShare::chipsPerDay))) {
            const bool isBest = best.contains(slot.start);
            const QString label = Formats::format(slot.start, u"EEEEjmm"_s, locale, m_zone);
            row.chips.append({slot, Formats::format(slot.start, u"jmm"_s, locale, m_zone),
                              isBest ? Text::tr("%1, best of the day").arg(label) : label, isBest,
                              m_picked.contains(slot)});
        }
        days.append(std::move(row));
    }
    m_days->setDays(std::move(days));
}

std::optional<EventType> QuickShareModel::type() const
{
    return m_app ? m_app->type(m_typeSlug) : std::nullopt;
}

QString QuickShareModel::typeLink() const
{
    const std::optional<EventType> known = type();
    return known ? m_app->link(*known) : QString();
}

} // namespace quorvane
