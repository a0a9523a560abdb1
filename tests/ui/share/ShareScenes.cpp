// Share Times: loading, the days with their stars, three picks with the message, a failed
// fetch, a host with no type to offer, and the times shown in a guest's zone.
#include "SceneTable.h"
#include "Stage.h"

#include <QCoroTask>

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::test;

namespace {

Scene shareScene(const QString &name, std::function<void(Stage &)> prepare = {})
{
    Scene scene;
    scene.name = name;
    scene.window = u"share"_s;
    scene.prepare = std::move(prepare);
    return scene;
}

void call(Stage &stage, const char *method)
{
    QObject *share = stage.find(u"quickShareModel"_s);
    if (!share)
        return stage.problem(u"no Share Times model"_s);
    QMetaObject::invokeMethod(share, method);
}

// The server answers the next fetch in this way, and the window fetches again.
void refetch(Stage &stage, FixtureTransport::Mode mode)
{
    stage.app().transport().mode = mode;
    call(stage, "load");
}

} // namespace

QUORVANE_SCENES(share)
{
    Scene loading =
        shareScene(u"share-loading"_s, [](Stage &stage) { refetch(stage, FixtureTransport::Mode::silent); });
    Scene chips = shareScene(u"share-chips-and-stars"_s);
    Scene picks = shareScene(u"share-three-picks"_s, [](Stage &stage) { call(stage, "suggestBest"); });
    Scene failed = shareScene(u"share-error"_s, [](Stage &stage) { refetch(stage, FixtureTransport::Mode::status); });
    failed.settleMs = 1500; // a GET is tried again after 0.6 s
    Scene noTimes = shareScene(u"share-no-open-times"_s, [](Stage &stage) {
        for (EventType &type : stage.app().transport().data.settings->eventTypes)
            type.isActive = false;
        // After the refresh of the start, which would keep a second one out.
        while (stage.app().model().loading())
            Stage::wait(20);
        QCoro::waitFor(stage.app().model().refresh());
        call(stage, "open");
    });
    // The host in New York offers a guest in Berlin the same times in the guest's own zone.
    Scene berlin = shareScene(u"share-times-in-berlin"_s, [](Stage &stage) {
        stage.set(u"quickShareModel"_s, "zone", u"Europe/Berlin"_s);
        call(stage, "suggestBest");
    });
    return {loading, chips, picks, failed, noTimes, berlin};
}
