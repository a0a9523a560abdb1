// The main window's frame beyond the shell's states: a section still without its screen,
// a host without active event types, the sidebar folded away, and the smallest window.
#include "SceneTable.h"
#include "Stage.h"

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::test;

namespace {

Scene withData(const QString &name, std::function<void(Stage &)> prepare)
{
    Scene scene;
    scene.name = name;
    scene.prepare = std::move(prepare);
    return scene;
}

} // namespace

QUORVANE_SCENES(mainframe)
{
    Scene placeholder = withData(u"main-section-placeholder"_s,
                                 [](Stage &stage) { stage.app().model().setSection(AppSection::insights); });
    Scene noLinks = withData(u"main-no-share-links"_s, [](Stage &stage) {
        for (EventType &type : stage.app().transport().data.settings->eventTypes)
            type.isActive = false;
        stage.app().model().refreshNow();
    });
    Scene folded = withData(u"main-sidebar-hidden"_s, [](Stage &stage) {
        if (QObject *toggle = stage.find(u"sidebarToggle"_s))
            QMetaObject::invokeMethod(toggle, "clicked");
    });
    Scene smallest =
        withData(u"main-smallest"_s, [](Stage &stage) { stage.app().model().setSection(AppSection::bookings); });
    smallest.size = QSize(940, 620);
    return {placeholder, noLinks, folded, smallest};
}
