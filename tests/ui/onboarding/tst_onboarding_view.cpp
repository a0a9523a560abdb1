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

// The guide's window on a fixture app, with a real login item in a folder of the test's own.
struct Rig {
    explicit Rig(FixtureApp::State state = FixtureApp::State::withData, const QByteArray &qml = guideWindow)
        : app(FixtureApp::Options{.state = state, .onboarded = false}), setup(app.model(), app.environment(), loginItem),
          view(qml, setup)
    {
    }
    [[nodiscard]] QString text(const QString &name) const { return view.text(name); }
    [[nodiscard]] bool shows(const QString &name) const { return view.shows(name); }
    void click(const QString &name, int times = 1) const
    {
        for (int i = 0; i < times; ++i)
            view.click(name);
    }
    // The autostart folder can't be made: a file stands where it should be.
    [[nodiscard]] bool blockAutostart(bool blocked)
    {
        QFile file(folder.filePath(u"config/autostart"_s));
        if (!blocked)
            return file.remove();
        return QDir().mkpath(folder.filePath(u"config"_s)) && file.open(QIODevice::WriteOnly) && file.write("x") == 1;
    }

    QTemporaryDir folder;
    FixtureApp app;
    AutostartLoginItem loginItem{folder.filePath(u"config"_s), u"/usr/bin/quorvane"_s};
    SetupServices setup;
    ViewRig view;
};

} // namespace

class OnboardingViewTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { ViewRig::prepareProcess(); }

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
        QVERIFY_READY(rig.view);
        QVERIFY(!rig.shows(u"backButton"_s));
        rig.click(u"primaryButton"_s, step);
        QTRY_COMPARE(rig.text(u"primaryButton"_s), step == 3 ? u"Get Started"_s : u"Continue"_s);
        if (step > 0) {
            rig.click(u"backButton"_s);
            QTRY_COMPARE(rig.text(u"primaryButton"_s), u"Continue"_s);
            rig.view.window()->requestActivate();
            QVERIFY(QTest::qWaitForWindowActive(rig.view.window()));
            QTest::keyClick(rig.view.window(), Qt::Key_Return);
            QTRY_COMPARE(rig.text(u"primaryButton"_s), u"Get Started"_s);
        }
        QVERIFY(!rig.app.preferences().onboarded());
        if (getStarted)
            rig.click(u"primaryButton"_s);
        else
            rig.view.window()->close();
        QTRY_VERIFY(!rig.view.window()->isVisible());
        QCOMPARE(rig.app.preferences().onboarded(), getStarted);

        // The shell keeps a closed window; shown again, the guide starts over.
        rig.view.window()->show();
        QTRY_COMPARE(rig.text(u"primaryButton"_s), u"Continue"_s);
        QVERIFY(!rig.shows(u"backButton"_s));
    }

    void signInStepFollowsTheAccount_data()
    {
        QTest::addColumn<FixtureApp::State>("state");
        QTest::newRow("account known") << FixtureApp::State::withData;
        QTest::newRow("signed out") << FixtureApp::State::signedOut;
    }
    void signInStepFollowsTheAccount()
    {
        QFETCH(FixtureApp::State, state);
        Rig rig(state);
        QVERIFY_READY(rig.view);
        QVERIFY(!rig.shows(u"signedInLabel"_s) && !rig.shows(u"signInPanel"_s)); // not on the welcome step
        rig.click(u"primaryButton"_s);
        QTRY_VERIFY(rig.shows(u"signedInLabel"_s) || rig.shows(u"signInButton"_s));
        const std::optional<Account> account = rig.app.model().account();
        QCOMPARE(rig.shows(u"signedInLabel"_s), account.has_value());
        QCOMPARE(rig.shows(u"signInPanel"_s), !account);
        if (account)
            QCOMPARE(rig.text(u"signedInLabel"_s), u"Signed in as "_s + account->email);
    }

    // The switch the user flipped shows what the system did, also after a refusal.
    void loginSwitchShowsWhatHappened()
    {
        Rig rig;
        QVERIFY(rig.blockAutostart(true));
        QVERIFY_READY(rig.view);
        rig.click(u"primaryButton"_s, 2);
        QTRY_VERIFY(rig.shows(u"loginSwitch"_s));
        QQuickItem *login = rig.view.item(u"loginSwitch"_s);
        QVERIFY(!login->property("checked").toBool());
        rig.click(u"loginSwitch"_s);
        QTRY_VERIFY(!login->property("checked").toBool());
        QVERIFY(!rig.loginItem.isEnabled());
        QVERIFY(rig.blockAutostart(false));
        rig.click(u"loginSwitch"_s);
        QTRY_VERIFY(login->property("checked").toBool());
        QVERIFY(rig.loginItem.isEnabled());
    }

    // Every configured link is drawn, and a click goes through the app's one opener.
    void aboutLinks()
    {
        Rig rig(FixtureApp::State::withData, R"(
import QtQuick
import Quorvane.Onboarding
Window {
    width: 416; height: 400; visible: true
    AboutView { anchors.fill: parent }
})");
        QVERIFY_READY(rig.view);
        QCOMPARE(rig.text(u"versionLine"_s), u"Version 2.0 (200)"_s);
        const LinkListModel &links = *rig.setup.about()->links();
        QList<QQuickItem *> drawn;
        for (QQuickItem *child : rig.view.item(u"productLinks"_s)->childItems()) {
            if (child->property("url").isValid())
                drawn.append(child);
        }
        QVERIFY(!drawn.isEmpty());
        QCOMPARE(drawn.size(), links.rowCount());
        rig.view.click(drawn.last());
        QTRY_COMPARE(rig.app.opened, QList<QUrl>{links.data(links.index(links.rowCount() - 1), LinkListModel::UrlRole).toUrl()});
    }
};

QTEST_MAIN(OnboardingViewTest)
#include "tst_onboarding_view.moc"
