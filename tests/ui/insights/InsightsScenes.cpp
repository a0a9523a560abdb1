// The insights screen: the fixture's bookings, an account without bookings, and a type that
// was deleted, shown as "Meeting" in grey.
#include "SceneTable.h"
#include "Stage.h"

#include <QCoroTask>

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::test;

QUORVANE_SCENES(insights)
{
    Scene data = sectionScene(u"insights-with-data"_s, AppSection::insights);
    Scene empty = sectionScene(u"insights-no-data"_s, AppSection::insights);
    empty.fixture.emptyData = true;
    Scene deleted = sectionScene(u"insights-deleted-type"_s, AppSection::insights, {}, [](Stage &stage) {
        stage.app().transport().data.settings->eventTypes.removeAt(0); // Intro Call
        while (stage.app().model().loading())                          // the start's own refresh would swallow this one
            Stage::wait(20);
        QCoro::waitFor(stage.app().model().refresh());
    });
    return {data, empty, deleted};
}
