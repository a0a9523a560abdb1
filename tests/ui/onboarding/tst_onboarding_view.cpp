// The first-run window as a user meets it: clicks, keys, and what shows.
#include "FixtureApp.h"
#include "ui/components/ItemLookup.h"

#include <QQuickStyle>

#include "QuorvaneQmlModules.h"

using namespace quorvane;
using namespace quorvane::test;
using namespace Qt::StringLiterals;

namespace {

// The guide in its window on a fixture app signed out and not yet onboarded (which outlives it).
struct Rig : FixtureApp, View {
    Rig()
        : FixtureApp(FixtureApp::Options{.state = FixtureApp::State::signedOut, .onboarded = false})
        , View("import QtQuick\nimport Quorvane.Onboarding\n"
               "Window { width: 540; height: 470; visible: true; OnboardingView { anchors.fill: parent } }")
    {}
};

} // namespace

class OnboardingViewTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        QQuickStyle::setStyle(u"Fusion"_s);
        FixtureApp::registerQmlSingletons();
    }

    // Through the steps and back, by click and by Return, then out by Get Started or the
    // window's close button. Nothing on the way is required: not signing in holds nobody up.
    void stepsAndEndings_data()
    {
        QTest::addColumn<bool>("getStarted"); // else the window's close button
        QTest::addColumn<int>("step");        // where the user leaves
        QTest::newRow("Get Started") << true << 3;
        QTest::newRow("closed on the last step") << false << 3;
        QTest::newRow("closed at once") << false << 0;
    }
    void stepsAndEndings()
    {
        QFETCH(bool, getStarted);
        QFETCH(int, step);
        Rig rig;
        QVERIFY_READY(rig);
        QVERIFY(!rig.shows(u"backButton"_s));
        for (int i = 0; i < step; ++i)
            rig.click(u"primaryButton"_s);
        QTRY_COMPARE(rig.text(u"primaryButton"_s), step == 3 ? u"Get Started"_s : u"Continue"_s);
        if (step > 0) {
            rig.click(u"backButton"_s);
            QTRY_COMPARE(rig.text(u"primaryButton"_s), u"Continue"_s);
            rig.window->requestActivate();
            QVERIFY(QTest::qWaitForWindowActive(rig.window));
            rig.key(Qt::Key_Return);
            QTRY_COMPARE(rig.text(u"primaryButton"_s), u"Get Started"_s);
        }
        if (getStarted)
            rig.click(u"primaryButton"_s);
        else
            rig.window->close();
        QTRY_VERIFY(!rig.window->isVisible());
        QCOMPARE(rig.preferences().onboarded(), getStarted);

        // The shell keeps a closed window; shown again, the guide starts over.
        rig.window->show();
        QTRY_COMPARE(rig.text(u"primaryButton"_s), u"Continue"_s);
        QVERIFY(!rig.shows(u"backButton"_s));
    }
};

QTEST_MAIN(OnboardingViewTest)
#include "tst_onboarding_view.moc"
