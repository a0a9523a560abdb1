// The first-run window and About as a user meets them: clicks, keys, and what shows.
#include "FixtureApp.h"
#include "SetupServices.h"
#include "ViewRig.h"
#include "linux/AutostartLoginItem.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace quorvane;
using namespace quorvane::test;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(quorvane::test::FixtureApp::State)

namespace {

const QByteArray guideWindow = R"(
import QtQuick
import Quorvane.Onboarding
Window {
    width: 540; height: 470; visible: true
    OnboardingView { anchors.fill: parent }
})";

const QByteArray aboutWindow = R"(
import QtQuick
import Quorvane.Onboarding
Window {
    width: 416; height: 520; visible: true
    AboutView { anchors.fill: parent }
})";

// A fixture app, the services the views get from it, and an autostart folder of the test's own.
struct Rig {
    explicit Rig(FixtureApp::State state = FixtureApp::State::withData)
        : app(FixtureApp::Options{.state = state, .onboarded = false}),
          loginItem(folder.filePath(u"config"_s), u"/usr/bin/quorvane"_s), setup(app.model(), environment(), loginItem)
    {
    }
    AppEnvironment environment()
    {
        AppEnvironment env;
        env.clock = &app.clock;
        env.transport = std::shared_ptr<HTTPTransport>(std::shared_ptr<void>(), &app.transport());
        env.secrets = &app.secrets;
        env.notifier = &app.notifier;
        env.preferences = &app.preferences();
        env.opener = &app.opener;
        return env;
    }
    [[nodiscard]] QString text(QQuickItem *item) const { return item ? item->property("text").toString() : QString(); }

    QTemporaryDir folder;
    FixtureApp app;
    AutostartLoginItem loginItem;
    SetupServices setup;
};

} // namespace

class OnboardingViewTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void stepsForwardAndBack();
    void endings_data();
    void endings();
    void signInStepFollowsTheAccount_data();
    void signInStepFollowsTheAccount();
    void loginSwitchShowsWhatHappened_data();
    void loginSwitchShowsWhatHappened();
    void about();
};

void OnboardingViewTest::initTestCase()
{
    ViewRig::prepareProcess();
}

void OnboardingViewTest::stepsForwardAndBack()
{
    Rig rig;
    ViewRig view(guideWindow, rig.setup);
    QString why;
    QVERIFY2(view.ready(&why), qPrintable(why));
    QQuickItem *back = view.item(u"backButton"_s);
    QQuickItem *primary = view.item(u"primaryButton"_s);
    QVERIFY(back && primary);

    QVERIFY(!ViewRig::shown(back));
    QCOMPARE(rig.text(primary), u"Continue"_s);
    // Nothing on the way is required: not signing in doesn't hold anyone up.
    for (int step = 1; step <= 3; ++step) {
        view.click(primary);
        QTRY_VERIFY(ViewRig::shown(back));
    }
    QCOMPARE(rig.text(primary), u"Get Started"_s);
    view.click(back);
    QTRY_COMPARE(rig.text(primary), u"Continue"_s);

    // Return is the default button.
    view.window()->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(view.window()));
    QTest::keyClick(view.window(), Qt::Key_Return);
    QTRY_COMPARE(rig.text(primary), u"Get Started"_s);
    QVERIFY(view.window()->isVisible());
    QVERIFY(!rig.app.preferences().onboarded());
}

void OnboardingViewTest::endings_data()
{
    QTest::addColumn<bool>("getStarted"); // else the window's close button
    QTest::addColumn<int>("step");        // where the user leaves
    QTest::newRow("Get Started") << true << 3;
    QTest::newRow("closed on the last step") << false << 3;
    QTest::newRow("closed at once") << false << 0;
}

void OnboardingViewTest::endings()
{
    QFETCH(bool, getStarted);
    QFETCH(int, step);
    Rig rig;
    ViewRig view(guideWindow, rig.setup);
    QString why;
    QVERIFY2(view.ready(&why), qPrintable(why));
    QQuickItem *primary = view.item(u"primaryButton"_s);
    for (int i = 0; i < step; ++i)
        view.click(primary);
    QTRY_COMPARE(rig.text(primary), step == 3 ? u"Get Started"_s : u"Continue"_s);

    if (getStarted)
        view.click(primary);
    else
        view.window()->close();
    QTRY_VERIFY(!view.window()->isVisible());
    QCOMPARE(rig.app.preferences().onboarded(), getStarted);

    // The shell keeps a closed window; shown again, the guide starts over.
    view.window()->show();
    QTRY_COMPARE(rig.text(primary), u"Continue"_s);
    QVERIFY(!ViewRig::shown(view.item(u"backButton"_s)));
}

void OnboardingViewTest::signInStepFollowsTheAccount_data()
{
    QTest::addColumn<FixtureApp::State>("state");
    QTest::addColumn<bool>("signedIn");
    QTest::newRow("account known") << FixtureApp::State::withData << true;
    QTest::newRow("signed out") << FixtureApp::State::signedOut << false;
}

void OnboardingViewTest::signInStepFollowsTheAccount()
{
    QFETCH(FixtureApp::State, state);
    QFETCH(bool, signedIn);
    Rig rig(state);
    ViewRig view(guideWindow, rig.setup);
    QString why;
    QVERIFY2(view.ready(&why), qPrintable(why));
    QQuickItem *label = view.item(u"signedInLabel"_s);
    QQuickItem *panel = view.item(u"signInPanel"_s);
    QVERIFY(label && panel);
    QVERIFY(!ViewRig::shown(label) && !ViewRig::shown(panel)); // not on the welcome step

    view.click(view.item(u"primaryButton"_s));
    // One of the two shows once the step has faded in, never both.
    QTRY_VERIFY(ViewRig::shown(label) || ViewRig::shown(panel));
    QCOMPARE(ViewRig::shown(label), signedIn);
    QCOMPARE(ViewRig::shown(panel), !signedIn);
    if (signedIn) {
        QVERIFY(rig.app.model().account().has_value());
        QCOMPARE(rig.text(label), u"Signed in as "_s + rig.app.model().account()->email);
    } else {
        QVERIFY(ViewRig::shown(view.item(u"signInButton"_s)));
    }
}

void OnboardingViewTest::loginSwitchShowsWhatHappened_data()
{
    QTest::addColumn<bool>("blocked"); // a file where the autostart folder should be
    QTest::newRow("entry written") << false;
    QTest::newRow("entry refused") << true;
}

void OnboardingViewTest::loginSwitchShowsWhatHappened()
{
    QFETCH(bool, blocked);
    Rig rig;
    if (blocked) {
        QVERIFY(QDir().mkpath(rig.folder.filePath(u"config"_s)));
        QFile file(rig.folder.filePath(u"config/autostart"_s));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("x") == 1);
    }
    ViewRig view(guideWindow, rig.setup);
    QString why;
    QVERIFY2(view.ready(&why), qPrintable(why));
    QQuickItem *primary = view.item(u"primaryButton"_s);
    view.click(primary);
    view.click(primary);
    QQuickItem *login = view.item(u"loginSwitch"_s);
    QTRY_VERIFY(ViewRig::shown(login));
    QVERIFY(!login->property("checked").toBool());

    view.click(login);
    QTRY_COMPARE(login->property("checked").toBool(), !blocked);
    QCOMPARE(rig.loginItem.isEnabled(), !blocked);
    // Flipped back after a refusal, the switch still follows the next answer.
    if (blocked) {
        QVERIFY(QFile::remove(rig.folder.filePath(u"config/autostart"_s)));
        view.click(login);
        QTRY_VERIFY(login->property("checked").toBool());
        QVERIFY(rig.loginItem.isEnabled());
    }
}

void OnboardingViewTest::about()
{
    Rig rig;
    ViewRig view(aboutWindow, rig.setup);
    QString why;
    QVERIFY2(view.ready(&why), qPrintable(why));
    QCOMPARE(rig.text(view.item(u"versionLine"_s)), u"Version 2.0 (200)"_s);
    QCOMPARE(rig.text(view.item(u"madeBy"_s)), u"Made by Ilvane Dorsk"_s);

    // Every configured link is drawn, and a click goes through the app's one opener.
    LinkListModel *links = rig.setup.about()->links();
    QVERIFY(links->rowCount() > 0);
    QQuickItem *row = view.item(u"productLinks"_s);
    QVERIFY(row && ViewRig::shown(row));
    QList<QQuickItem *> drawn;
    for (QQuickItem *child : row->childItems()) {
        if (child->property("url").isValid())
            drawn.append(child);
    }
    QCOMPARE(drawn.size(), links->rowCount());
    const QUrl last = links->data(links->index(links->rowCount() - 1), LinkListModel::UrlRole).toUrl();
    view.click(drawn.last());
    QTRY_COMPARE(rig.app.opened, QList<QUrl>{last});
}

QTEST_MAIN(OnboardingViewTest)
#include "tst_onboarding_view.moc"
