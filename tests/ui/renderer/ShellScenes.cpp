// The application's windows and the main window's states.
#include "SceneTable.h"
#include "Stage.h"

#include <QMetaObject>

using namespace Qt::StringLiterals;
using namespace quorvane::test;

namespace {

using State = FixtureApp::State;

Scene mainIn(const QString &name, State state)
{
    Scene scene;
    scene.name = name;
    scene.fixture.state = state;
    return scene;
}

// Opens one of the main window's menus, as a click on its title would.
std::function<void(Stage &)> openMenu(const QString &menu)
{
    return [menu](Stage &stage) {
        QObject *popup = stage.find(menu);
        if (!popup || !QMetaObject::invokeMethod(popup, "open"))
            stage.problem(u"no menu \"%1\" to open"_s.arg(menu));
    };
}

} // namespace

QUORVANE_SCENES(shell)
{
    Scene fileMenu = mainIn(u"main-menu-file"_s, State::withData);
    fileMenu.prepare = openMenu(u"fileMenu"_s);
    Scene goMenu = mainIn(u"main-menu-go"_s, State::withData);
    goMenu.prepare = openMenu(u"goMenu"_s);
    Scene helpMenu = mainIn(u"main-menu-help"_s, State::withData);
    helpMenu.prepare = openMenu(u"helpMenu"_s);

    Scene share;
    share.name = u"share-window"_s;
    share.window = u"share"_s;
    Scene settings;
    settings.name = u"settings-window"_s;
    settings.window = u"settings"_s;

    return {
        mainIn(u"main-with-data"_s, State::withData),
        mainIn(u"main-signed-out"_s, State::signedOut),
        mainIn(u"main-offline"_s, State::offline),
        mainIn(u"main-error-banner"_s, State::errorBanner),
        mainIn(u"main-toast"_s, State::toast),
        mainIn(u"main-loading"_s, State::loading),
        fileMenu,
        goMenu,
        helpMenu,
        share,
        settings,
    };
}
