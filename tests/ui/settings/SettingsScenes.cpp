// The settings window: each pane signed in, Account signed out, a read-only calendar,
// notifications off and an update on offer.
#include "SceneTable.h"
#include "Stage.h"

#include <QCoroTask>
#include <QMetaObject>

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::test;

namespace {

using State = FixtureApp::State;

enum Pane { general, account, calendar, notifications, updates, about };

// The settings window on one tab: `before` runs first, then the tab is chosen, then `after`.
Scene pane(const QString &name, Pane tab, State state = State::withData, std::function<void(Stage &)> before = {},
           std::function<void(Stage &)> after = {})
{
    Scene scene;
    scene.name = name;
    scene.window = u"settings"_s;
    scene.fixture.state = state;
    scene.prepare = [tab, before = std::move(before), after = std::move(after)](Stage &stage) {
        if (before)
            before(stage);
        stage.set(u"settingsTabs"_s, "currentIndex", int(tab));
        Stage::wait(200);
        if (after)
            after(stage);
    };
    return scene;
}

} // namespace

QUORVANE_SCENES(settings)
{
    // A holiday calendar the host may read but not write: a switch, but no place under "Add to".
    const auto readOnly = [](Stage &stage) {
        while (stage.app().model().loading()) // the refresh at start
            Stage::wait(50);
        stage.app().transport().data.google->calendars->append(
            CalendarItem{u"en.usa#holiday@group.v.calendar.google.com"_s, u"Holidays in United States"_s, false, false,
                         u"#FF9500"_s});
        QCoro::waitFor(stage.app().model().refresh());
    };
    // "Add to" open: the read-only calendar isn't offered.
    const auto addToOpen = [](Stage &stage) {
        QObject *choice = stage.find(u"bookingCalendar"_s);
        auto *popup = choice ? choice->property("popup").value<QObject *>() : nullptr;
        if (!popup || !QMetaObject::invokeMethod(popup, "open"))
            stage.problem(u"no \"Add to\" list to open"_s);
    };
    // No notification service answers, and "Enable…" didn't change that.
    const auto off = [](Stage &stage) { stage.app().notifier.authorizes = false; };
    const auto refused = [](Stage &stage) {
        QObject *enable = stage.find(u"enableButton"_s);
        if (!enable || !QMetaObject::invokeMethod(enable, "clicked"))
            stage.problem(u"no \"Enable…\" button"_s);
    };
    const auto offered = [](Stage &stage) {
        const QDateTime now = stage.app().clock.now();
        stage.app().updater.found(now.addSecs(-2 * 3600),
                                  u"Quorvane 2.1 is available. Your package manager delivers it."_s, u"2.1"_s,
                                  u"https://quorvane.example/releases/2.1"_s);
    };
    const auto checked = [](Stage &stage) {
        stage.app().updater.found(stage.app().clock.now().addDays(-1), u"Quorvane is up to date."_s);
    };

    return {
        pane(u"settings-general"_s, general),
        pane(u"settings-account"_s, account),
        pane(u"settings-account-signed-out"_s, account, State::signedOut),
        pane(u"settings-calendar"_s, calendar),
        pane(u"settings-calendar-read-only"_s, calendar, State::withData, readOnly, addToOpen),
        pane(u"settings-notifications"_s, notifications),
        pane(u"settings-notifications-off"_s, notifications, State::withData, off, refused),
        pane(u"settings-updates"_s, updates, State::withData, checked),
        pane(u"settings-updates-available"_s, updates, State::withData, offered),
        pane(u"settings-about"_s, about),
    };
}
