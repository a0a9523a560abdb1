// The first-run guide at each step, the sign-in panel showing its code, and About.
#include "SceneTable.h"
#include "Stage.h"

#include <QMetaObject>

using namespace Qt::StringLiterals;
using namespace quorvane::test;

namespace {

using State = FixtureApp::State;

// Presses the buttons with these names in turn, as a click would.
std::function<void(Stage &)> press(const QStringList &buttons)
{
    return [buttons](Stage &stage) {
        for (const QString &name : buttons) {
            QObject *button = stage.find(name);
            if (!button || !QMetaObject::invokeMethod(button, "clicked"))
                stage.problem(u"no button \"%1\" to press"_s.arg(name));
            Stage::wait(650); // the step's fade
        }
    };
}

Scene guideAt(const QString &name, State state, int step, const QStringList &then = {})
{
    Scene scene;
    scene.name = name;
    scene.window = u"onboarding"_s;
    scene.fixture.state = state;
    scene.fixture.onboarded = false;
    QStringList buttons;
    for (int i = 0; i < step; ++i)
        buttons.append(u"primaryButton"_s);
    scene.prepare = press(buttons + then);
    return scene;
}

} // namespace

QUORVANE_SCENES(onboarding)
{
    Scene about;
    about.name = u"about"_s;
    about.window = u"about"_s;

    // The server can't be reached when the sign-in starts.
    Scene failed = guideAt(u"onboarding-step-1-failed"_s, State::signedOut, 1, {u"signInButton"_s});
    failed.prepare = [pressButtons = failed.prepare](Stage &stage) {
        stage.app().transport().mode = FixtureTransport::Mode::fail;
        pressButtons(stage);
    };

    return {
        guideAt(u"onboarding-step-0"_s, State::signedOut, 0),
        guideAt(u"onboarding-step-1-signed-out"_s, State::signedOut, 1),
        guideAt(u"onboarding-step-1-code"_s, State::signedOut, 1, {u"signInButton"_s}),
        failed,
        guideAt(u"onboarding-step-1-signed-in"_s, State::withData, 1),
        guideAt(u"onboarding-step-2"_s, State::withData, 2),
        guideAt(u"onboarding-step-3"_s, State::withData, 3),
        about,
    };
}
