// What the screens call to change anything: one-shot commands, toasts, copying, and the
// debounced editing of the host's settings.
#include "model/AppModel.h"

#include "Clipboard.h"
#include "Formats.h"
#include "UrlOpener.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(AppModel)
};
} // namespace

void AppModel::perform(const QString &successText, Operation operation)
{
    run(performTask(successText, std::move(operation)));
}

QCoro::Task<> AppModel::performTask(QString successText, Operation operation)
{
    QPointer<AppModel> self(this);
    std::exception_ptr failure;
    try {
        co_await operation(api());
    } catch (...) {
        failure = std::current_exception();
    }
    if (!self)
        co_return;
    if (failure) {
        handle(failure, false);
        co_return;
    }
    co_await refresh(true);
    if (self)
        toast(successText);
}

void AppModel::toast(const QString &text)
{
    setBanner(Banner{text, Banner::Kind::info, false});
    // Clears whichever banner then carries the same words: a repeated toast goes with the first timer.
    QTimer::singleShot(m_env.timings.toast, this, [this, text] {
        if (m_banner && m_banner->message == text)
            setBanner(std::nullopt);
    });
}

void AppModel::cancel(const Booking &booking)
{
    const QString id = booking.id;
    perform(Text::tr("Booking cancelled. %1 was notified.").arg(booking.name),
            [id](QuorvaneAPI api) { return api.cancel(id); });
}

void AppModel::setNoShow(const Booking &booking, bool value)
{
    const QString id = booking.id;
    perform(value ? Text::tr("Marked as no-show") : Text::tr("No-show cleared"),
            [id, value](QuorvaneAPI api) { return api.setNoShow(id, value); });
}

void AppModel::deletePoll(const Poll &poll)
{
    const QString id = poll.id;
    perform(Text::tr("Poll deleted"), [id](QuorvaneAPI api) { return api.deletePoll(id); });
}

void AppModel::createPoll(const QString &title, const QString &type)
{
    QPointer<AppModel> self(this);
    perform(Text::tr("Poll created. Link copied."), [self, title, type](QuorvaneAPI api) -> QCoro::Task<> {
        const std::optional<QString> url = co_await api.createPoll(title, type);
        if (url && self)
            self->copy(*url);
    });
}

void AppModel::connectGoogle()
{
    run(connectGoogleTask());
}

QCoro::Task<> AppModel::connectGoogleTask()
{
    QPointer<AppModel> self(this);
    std::optional<QUrl> url;
    std::exception_ptr failure;
    try {
        url = co_await api().connectLink();
    } catch (...) {
        failure = std::current_exception();
    }
    if (!self)
        co_return;
    if (failure)
        handle(failure, false);
    else if (url)
        openURL(*url);
}

void AppModel::copyLink(const EventType &type)
{
    copy(link(type));
    toast(Text::tr("Copied link for %1").arg(type.title));
}

void AppModel::join(const Booking &booking)
{
    if (const std::optional<QUrl> url = booking.meetURL())
        openURL(*url);
}

bool AppModel::canJoinNext() const
{
    const std::optional<Booking> booking = next();
    return booking && booking->meetURL().has_value();
}

void AppModel::joinNext()
{
    if (const std::optional<Booking> booking = next())
        join(*booking);
}

void AppModel::email(const Booking &booking)
{
    const QUrl url(u"mailto:"_s + booking.email, QUrl::StrictMode);
    if (url.isValid())
        openURL(url);
}

void AppModel::openURL(const QUrl &url) const
{
    m_env.opener->open(url);
}

QString AppModel::rescheduleText(const Booking &booking) const
{
    const std::optional<EventType> t = type(booking.type);
    const QString url = t ? link(*t) : pageLink();
    const QStringList names = booking.name.split(u' ', Qt::SkipEmptyParts);
    const QString first = names.isEmpty() ? QString() : names.first();
    const QString word = typeTitle(booking.type).toLower();
    const QString date = Formats::format(booking.start, u"EEEEMMMdjmm"_s, m_env.locale, m_env.zone);
    return Text::tr("Hi %1, I need to move our %2 on %3. Could you pick a new time here? %4\n"
                    "I'll cancel the original once you've rebooked. Thanks!")
        .arg(first, word, date, url);
}

void AppModel::rescheduleMessage(const Booking &booking)
{
    copy(rescheduleText(booking));
    toast(Text::tr("Reschedule message copied"));
}

void AppModel::copy(const QString &text)
{
    m_env.clipboard->setText(text);
}

void AppModel::editSettings(const std::function<void(HostSettings &)> &edit)
{
    const std::optional<HostSettings> &base = m_draftSettings ? m_draftSettings : m_snapshot.settings;
    if (!base)
        return;
    HostSettings draft = *base;
    edit(draft);
    setDraftSettings(draft);
    if (m_saveTask)
        m_saveTask->cancel();
    m_saveTask = Cancellation();
    run(saveDraft(std::move(draft), *m_saveTask, ++m_saveGeneration));
}

QCoro::Task<> AppModel::saveDraft(HostSettings draft, Cancellation cancellation, quint64 generation)
{
    QPointer<AppModel> self(this);
    try {
        co_await Cancellation::sleep(m_env.timings.saveDebounce, cancellation);
    } catch (...) {}
    // Every edit cancels the one before it: only the last of a burst gets past here.
    if (!self || cancellation.isCancelled())
        co_return;
    setSaving(true);
    QuorvaneAPI api = this->api();
    api.cancellation = cancellation;
    std::exception_ptr failure;
    std::optional<HostSettings> stored;
    try {
        stored = co_await api.saveSettings(draft);
    } catch (...) {
        failure = std::current_exception();
    }
    if (!self)
        co_return;
    if (stored) {
        // The draft keeps what the user sees; the next refresh brings it in line.
        Snapshot updated = m_snapshot;
        updated.settings = *stored;
        setSnapshot(updated);
        m_cache.save(m_snapshot);
    } else {
        handle(failure, false);
    }
    setSaving(false);
    // A newer edit may already wait with its own handle; that one stays.
    if (generation == m_saveGeneration)
        m_saveTask.reset();
}

} // namespace quorvane
