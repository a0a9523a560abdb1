#pragma once

#include "model/AppEnvironment.h"
#include "model/AppSection.h"
#include "model/Banner.h"

#include "Cancellation.h"
#include "ChangeTracker.h"
#include "Insights.h"
#include "Keychain.h"
#include "QuorvaneAPI.h"
#include "Records.h"
#include "SnapshotCache.h"

#include <QCoroTask>
#include <QObject>
#include <QTimer>
#include <QtQml/qqmlregistration.h>

#include <exception>
#include <functional>
#include <optional>

namespace quorvane {

// The one object every screen observes: what the client knows from the server, the draft of
// the host's settings, navigation state, the user's preferences, the banner, and the cycle
// that keeps all of it fresh. Lives on the main thread; nothing here throws to its callers.
class AppModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The one model is made by the application and reached as App.")
    Q_PROPERTY(bool loading READ loading NOTIFY loadingChanged)
    Q_PROPERTY(bool firstLoadDone READ firstLoadDone NOTIFY firstLoadDoneChanged)
    Q_PROPERTY(bool offline READ offline NOTIFY offlineChanged)
    Q_PROPERTY(bool needsSignIn READ needsSignIn NOTIFY needsSignInChanged)
    Q_PROPERTY(bool saving READ saving NOTIFY savingChanged)
    Q_PROPERTY(QDateTime lastRefresh READ lastRefreshOrNull NOTIFY lastRefreshChanged)
    Q_PROPERTY(QString section READ sectionId WRITE setSectionId NOTIFY sectionChanged)
    Q_PROPERTY(QString selectedBooking READ selectedBookingId WRITE setSelectedBookingId NOTIFY selectedBookingChanged)
    Q_PROPERTY(bool showPalette READ showPalette WRITE setShowPalette NOTIFY showPaletteChanged)
    Q_PROPERTY(bool showNewPoll READ showNewPoll WRITE setShowNewPoll NOTIFY showNewPollChanged)
    Q_PROPERTY(bool menuBarShowsNext READ menuBarShowsNext WRITE setMenuBarShowsNext NOTIFY preferencesChanged)
    Q_PROPERTY(bool notifyBookings READ notifyBookings WRITE setNotifyBookings NOTIFY preferencesChanged)
    Q_PROPERTY(bool notifyReminders READ notifyReminders WRITE setNotifyReminders NOTIFY preferencesChanged)
    Q_PROPERTY(int reminderMinutes READ reminderMinutes WRITE setReminderMinutes NOTIFY preferencesChanged)
    Q_PROPERTY(QString serverURL READ serverURL WRITE setServerURL NOTIFY preferencesChanged)
    // The banner in plain parts for QML; kind is a BannerKind.
    Q_PROPERTY(bool hasBanner READ hasBanner NOTIFY bannerChanged)
    Q_PROPERTY(QString bannerMessage READ bannerMessage NOTIFY bannerChanged)
    Q_PROPERTY(BannerKind bannerKind READ bannerKind NOTIFY bannerChanged)
    Q_PROPERTY(bool bannerRetry READ bannerRetry NOTIFY bannerChanged)
    Q_PROPERTY(bool hasAccount READ hasAccount NOTIFY snapshotChanged)
    // For the shell: the first-run guide's flag, and the menu's "Join Next Meeting".
    Q_PROPERTY(bool onboarded READ onboarded WRITE setOnboarded NOTIFY preferencesChanged)
    Q_PROPERTY(bool canJoinNext READ canJoinNext NOTIFY nextChanged)

public:
    enum class BannerKind { Error, Offline, Info };
    Q_ENUM(BannerKind)

    explicit AppModel(AppEnvironment environment, QObject *parent = nullptr);
    // Where the saved snapshot of a data directory lives.
    [[nodiscard]] static QString cachePath(const QString &dataDirectory);
    ~AppModel() override;

    // --- state ---
    [[nodiscard]] const Snapshot &snapshot() const { return m_snapshot; }
    [[nodiscard]] const std::optional<HostSettings> &draftSettings() const { return m_draftSettings; }
    [[nodiscard]] bool loading() const { return m_loading; }
    [[nodiscard]] bool firstLoadDone() const { return m_firstLoadDone; }
    [[nodiscard]] const std::optional<Banner> &banner() const { return m_banner; }
    [[nodiscard]] bool offline() const { return m_offline; }
    [[nodiscard]] bool needsSignIn() const { return m_needsSignIn; }
    [[nodiscard]] bool saving() const { return m_saving; }
    [[nodiscard]] const std::optional<Instant> &lastRefresh() const { return m_lastRefresh; }
    [[nodiscard]] AppSection section() const { return m_section; }
    void setSection(AppSection section);
    [[nodiscard]] const std::optional<QString> &selectedBooking() const { return m_selectedBooking; }
    void setSelectedBooking(std::optional<QString> id);
    [[nodiscard]] bool showPalette() const { return m_showPalette; }
    void setShowPalette(bool show);
    [[nodiscard]] bool showNewPoll() const { return m_showNewPoll; }
    void setShowNewPoll(bool show);
    [[nodiscard]] const ChangeTracker &tracker() const { return m_tracker; }

    // --- preferences, stored at once ---
    [[nodiscard]] bool menuBarShowsNext() const;
    void setMenuBarShowsNext(bool value);
    [[nodiscard]] bool notifyBookings() const;
    void setNotifyBookings(bool value);
    [[nodiscard]] bool notifyReminders() const;
    void setNotifyReminders(bool value);
    [[nodiscard]] int reminderMinutes() const;
    void setReminderMinutes(int value);
    [[nodiscard]] QString serverURL() const;
    void setServerURL(const QString &value);
    [[nodiscard]] bool onboarded() const;
    void setOnboarded(bool value);

    // --- derived, recomputed at every read ---
    [[nodiscard]] Instant now() const;
    [[nodiscard]] std::optional<Account> account() const { return m_snapshot.account; }
    [[nodiscard]] std::optional<HostSettings> settings() const { return m_snapshot.settings; }
    [[nodiscard]] QList<EventType> eventTypes() const;
    [[nodiscard]] QList<EventType> activeTypes() const;
    [[nodiscard]] QList<Booking> upcoming() const;
    // As many as upcoming() gives, without copying them.
    [[nodiscard]] qsizetype upcomingCount() const;
    [[nodiscard]] QList<Booking> today() const;
    [[nodiscard]] std::optional<Booking> next() const;
    [[nodiscard]] QList<Booking> allBookings() const;
    // One booking of allBookings() by its id.
    [[nodiscard]] std::optional<Booking> booking(const QString &id) const;
    [[nodiscard]] bool googleConnected() const;
    [[nodiscard]] std::optional<EventType> type(const QString &slug) const;
    [[nodiscard]] QString typeTitle(const QString &slug) const;
    [[nodiscard]] QString typeColorHex(const QString &slug) const;
    [[nodiscard]] QString link(const EventType &type) const;
    [[nodiscard]] QString pageLink() const;
    [[nodiscard]] Insights insights() const;
    [[nodiscard]] QUrl baseURL() const;
    [[nodiscard]] QuorvaneAPI api() const;
    [[nodiscard]] const QString &locale() const { return m_env.locale; }
    [[nodiscard]] const QString &zone() const { return m_env.zone; }

    // --- the cycle ---
    Q_INVOKABLE void start();
    QCoro::Task<> tick();
    QCoro::Task<> refresh(bool silent = false);
    QCoro::Task<> pollChanges(bool prime);
    void scheduleReminders();
    // Maps a failure to state and banner. Cancellation is no failure and changes nothing.
    void handle(const std::exception_ptr &error, bool silent = false);
    void signedIn();
    void signOut();

    // --- commands: each shows its outcome in state, banner or toast ---
    using Operation = std::function<QCoro::Task<>(QuorvaneAPI)>;
    void perform(const QString &successText, Operation operation);
    void toast(const QString &text);
    void cancel(const Booking &booking);
    void setNoShow(const Booking &booking, bool value);
    void deletePoll(const Poll &poll);
    void createPoll(const QString &title, const QString &type);
    void connectGoogle();
    void copyLink(const EventType &type);
    void join(const Booking &booking);
    // `next` has a meeting link to open.
    [[nodiscard]] bool canJoinNext() const;
    Q_INVOKABLE void joinNext();
    void rescheduleMessage(const Booking &booking);
    // A new message to the guest in the default mail program.
    void email(const Booking &booking);
    // Opens a link in its default program, through the opener that allows web and mail links only.
    void openURL(const QUrl &url) const;
    [[nodiscard]] QString rescheduleText(const Booking &booking) const;
    void copy(const QString &text);
    // The one way the client changes the host's settings: at once in the draft, on the
    // server after a pause, so a drag or a burst of typing costs one request.
    void editSettings(const std::function<void(HostSettings &)> &edit);

    Q_INVOKABLE void refreshNow() { run(refresh(false)); }
    Q_INVOKABLE void dismissBanner() { setBanner(std::nullopt); }

Q_SIGNALS:
    void snapshotChanged();
    void draftSettingsChanged();
    void loadingChanged();
    void firstLoadDoneChanged();
    void bannerChanged();
    void offlineChanged();
    void needsSignInChanged();
    void savingChanged();
    void lastRefreshChanged();
    void sectionChanged();
    void selectedBookingChanged();
    void showPaletteChanged();
    void showNewPollChanged();
    void preferencesChanged();
    // Once a minute: everything that depends on the clock reads it again.
    void ticked();
    // `next` may be another booking: after a new snapshot or a tick.
    void nextChanged();
    // A booking's change was just announced to the user: booked, or cancelled.
    void announced(const QString &bookingId, bool cancelled);

private:
    static void run(QCoro::Task<> &&task);
    QCoro::Task<> saveDraft(HostSettings draft, Cancellation cancellation, quint64 generation);
    QCoro::Task<> performTask(QString successText, Operation operation);
    QCoro::Task<> connectGoogleTask();
    QCoro::Task<> createPollTask(QString title, QString type);
    [[nodiscard]] bool signedInNow() const { return m_keychain.token().has_value(); }
    [[nodiscard]] QString offlineMessage() const;
    void saveTracker() const;
    [[nodiscard]] QString trackerPath() const;

    void setSnapshot(Snapshot snapshot);
    void setDraftSettings(std::optional<HostSettings> draft);
    void setLoading(bool value);
    void setFirstLoadDone(bool value);
    void setBanner(std::optional<Banner> banner);
    void setOffline(bool value);
    void setNeedsSignIn(bool value);
    void setSaving(bool value);
    void setLastRefresh(std::optional<Instant> value);

    // For QML: the optional and enum properties in plain forms.
    [[nodiscard]] bool hasBanner() const { return m_banner.has_value(); }
    [[nodiscard]] QString bannerMessage() const { return m_banner ? m_banner->message : QString(); }
    [[nodiscard]] BannerKind bannerKind() const
    {
        return m_banner ? BannerKind(int(m_banner->kind)) : BannerKind::Error;
    }
    [[nodiscard]] bool bannerRetry() const { return m_banner && m_banner->retry; }
    [[nodiscard]] bool hasAccount() const { return m_snapshot.account.has_value(); }
    [[nodiscard]] QDateTime lastRefreshOrNull() const { return m_lastRefresh.value_or(QDateTime()); }
    [[nodiscard]] QString sectionId() const { return Section::id(m_section); }
    void setSectionId(const QString &id);
    [[nodiscard]] QString selectedBookingId() const { return m_selectedBooking.value_or(QString()); }
    void setSelectedBookingId(const QString &id);

    AppEnvironment m_env;
    Keychain m_keychain;
    SnapshotCache m_cache;
    ChangeTracker m_tracker;
    QTimer m_timer;
    bool m_wakeConnected = false;
    std::optional<Cancellation> m_saveTask; // the pending or running debounced save
    quint64 m_saveGeneration = 0;

    Snapshot m_snapshot;
    // The screens ask for these lists many times a minute; they are sorted once per snapshot,
    // and each ask for the upcoming one only drops what has ended by then.
    BookingOrder m_order;
    std::optional<HostSettings> m_draftSettings;
    bool m_loading = false;
    bool m_firstLoadDone = false;
    std::optional<Banner> m_banner;
    bool m_offline = false;
    bool m_needsSignIn = true;
    bool m_saving = false;
    std::optional<Instant> m_lastRefresh;
    AppSection m_section = AppSection::today;
    std::optional<QString> m_selectedBooking;
    bool m_showPalette = false;
    bool m_showNewPoll = false;
};

} // namespace quorvane
