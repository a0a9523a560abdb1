// The tray popover, signed in and out, with a failure on top and with a toast.
#include "SceneTable.h"
#include "Stage.h"

using namespace Qt::StringLiterals;
using namespace quorvane::test;

namespace {

Scene popoverIn(const QString &name, FixtureApp::State state)
{
    Scene scene;
    scene.name = name;
    scene.window = u"popover"_s;
    scene.fixture.state = state;
    scene.settleMs = 700; // the banner's spring
    return scene;
}

} // namespace

QUORVANE_SCENES(tray)
{
    using State = FixtureApp::State;
    Scene emptyDay = popoverIn(u"popover-empty-day"_s, State::withData);
    emptyDay.fixture.emptyData = true;
    return {
        popoverIn(u"popover-signed-in"_s, State::withData),
        popoverIn(u"popover-signed-out"_s, State::signedOut),
        popoverIn(u"popover-error-banner"_s, State::errorBanner),
        popoverIn(u"popover-toast"_s, State::toast),
        emptyDay,
    };
}
