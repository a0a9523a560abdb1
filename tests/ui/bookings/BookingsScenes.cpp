// The bookings screen: each filter with a booking selected, a search without result, the
// cancel confirmation, the context menu, and the skeleton before the first load.
#include "SceneTable.h"
#include "Stage.h"

#include <QCoreApplication>
#include <QKeyEvent>

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::test;

namespace {

// The bookings section with one filter (an index of Upcoming, Past, Cancelled, All) and one
// booking selected, then whatever `more` does.
Scene bookings(const QString &name, int filter, const QString &selected, std::function<void(Stage &)> more = {})
{
    return sectionScene(name, AppSection::bookings, [=](Stage &stage) {
        stage.set(u"bookingsModel"_s, "filter", filter);
        if (!selected.isEmpty())
            stage.app().model().setSelectedBooking(selected);
        if (more)
            more(stage);
    });
}

} // namespace

QUORVANE_SCENES(bookings)
{
    // Hannah Okafor's deep dive today at one, with notes and an answer.
    Scene upcoming = bookings(u"bookings-upcoming-selected"_s, 0, u"bk-003"_s);
    Scene past = bookings(u"bookings-past-no-show"_s, 1, u"bk-026"_s);
    Scene cancelled = bookings(u"bookings-cancelled"_s, 2, {});
    Scene all = bookings(u"bookings-all-cancelled-selected"_s, 3, u"bk-008"_s);
    Scene search = bookings(u"bookings-search-no-result"_s, 0, {},
                            [](Stage &stage) { stage.set(u"bookingsModel"_s, "query", u"zeppelin"_s); });
    Scene dialog = bookings(u"bookings-cancel-dialog"_s, 0, u"bk-003"_s, [](Stage &stage) {
        Stage::wait(100);
        stage.set(u"bookingDetail"_s, "confirmCancel", true);
    });
    // The menu key on the selected row, as a keyboard user opens it.
    Scene menu = bookings(u"bookings-context-menu"_s, 0, u"bk-002"_s, [](Stage &stage) {
        Stage::wait(100);
        QObject *list = stage.find(u"bookingList"_s);
        if (!list)
            return stage.problem(u"no booking list"_s);
        QMetaObject::invokeMethod(list, "forceActiveFocus");
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Menu, Qt::NoModifier);
        QCoreApplication::sendEvent(stage.window(), &press);
    });
    Scene loading = bookings(u"bookings-loading"_s, 0, {});
    loading.fixture.state = FixtureApp::State::loading;
    return {upcoming, past, cancelled, all, search, dialog, menu, loading};
}
