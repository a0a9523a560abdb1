// The availability screen: the fixture's week in each mode (with two focus blocks that
// overlap), a drag in progress, the sentence preview, the time zone list, and the screen
// signed out and loading.
#include "SceneTable.h"
#include "Stage.h"
#include "availability/DayColumnModel.h"

#include <QQuickItem>

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::test;

namespace {

// Tall enough for the grid and the rules under it.
constexpr QSize tall{1180, 1320};

Scene scene(const QString &name, std::function<void(Stage &)> after = {})
{
    Scene s = sectionScene(name, AppSection::availability, std::move(after));
    s.size = tall;
    return s;
}

// A day column's model, found by its column.
DayColumnModel *day(Stage &stage, int weekday)
{
    QObject *column = stage.find(u"day"_s + QString::number(weekday));
    return column ? column->property("model").value<DayColumnModel *>() : nullptr;
}

} // namespace

QUORVANE_SCENES(availability)
{
    Scene hours = scene(u"availability-hours"_s);
    Scene focus = scene(u"availability-focus"_s, [](Stage &stage) {
        stage.app().model().editSettings([](HostSettings &s) {
            s.focusBlocks.append({u"fb-overlap"_s, 4, {750, 840}, u"Writing"_s});
            s.focusBlocks.append({u"fb-short"_s, 6, {870, 900}, {}});
        });
        stage.set(u"availabilityModel"_s, "mode", 1);
    });
    // Friday's block in the middle of a drag down by an hour and a half, and a Saturday morning
    // being drawn.
    Scene drag = scene(u"availability-drag"_s, [](Stage &stage) {
        DayColumnModel *friday = day(stage, 6);
        DayColumnModel *saturday = day(stage, 7);
        if (!friday || !saturday)
            return stage.problem(u"no Friday or Saturday column"_s);
        friday->pressBlock(0, 10, 100);
        friday->moveTo(10, 130);
        friday->moveTo(10, 157);
        saturday->pressBackground(10, 95);
        saturday->moveTo(10, 215);
    });
    drag.settleMs = 900;
    Scene sentence = scene(u"availability-sentence"_s, [](Stage &stage) {
        stage.set(u"availabilityModel"_s, "nl", u"tue thu 8-11am, sat 10-2"_s);
    });
    Scene zones = scene(u"availability-time-zones"_s, [](Stage &stage) {
        QObject *picker = stage.find(u"timeZonePicker"_s);
        if (!picker)
            return stage.problem(u"no time zone picker"_s);
        QMetaObject::invokeMethod(picker, "clicked");
    });
    Scene signedOut = scene(u"availability-signed-out"_s);
    signedOut.fixture.state = FixtureApp::State::signedOut;
    Scene loading = scene(u"availability-loading"_s);
    loading.fixture.state = FixtureApp::State::loading;
    return {hours, focus, drag, sentence, zones, signedOut, loading};
}
