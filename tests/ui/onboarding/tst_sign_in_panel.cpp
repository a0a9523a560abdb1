// The sign-in panel driven like a user would, against the sandbox on loopback and the test
// session's keyring: the button, the code to confirm, cancelling, trying again, approval.
// The flow's own rules are tst_device_sign_in's.
#include "DeviceSignIn.h"
#include "ModelRig.h"
#include "SetupServices.h"
#include "ViewRig.h"
#include "support/MemoryLoginItem.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

using namespace quorvane;
using namespace quorvane::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QByteArray panelWindow = R"(
import QtQuick
import Quorvane.Onboarding
Window {
    width: 420; height: 220; visible: true
    SignInPanel { x: 20; y: 20; width: 380 }
})";

// The model of the rig, signed out, with the services the panel gets its sign-in from.
struct Rig {
    // False, with the reason in `why`, when a part of the rig didn't start.
    bool start()
    {
        if (!models.ready(&why))
            return false;
        models.keychain.write({});
        model = models.makeModel();
        setup = std::make_unique<SetupServices>(*model, models.environment(), loginItem, DeviceSignIn::Timings{20ms, 600s});
        view = std::make_unique<ViewRig>(panelWindow, *setup);
        const bool shown = view->ready();
        why = view->problem();
        return shown;
    }
    [[nodiscard]] bool shows(const QString &name) const { return view->shows(name); }
    void click(const QString &name) const { view->click(name); }
    [[nodiscard]] QString code() const { return view->text(u"code"_s); }
    // Waiting with a code on screen.
    [[nodiscard]] bool waiting() const { return shows(u"waitingPart"_s) && !code().isEmpty(); }
    [[nodiscard]] int starts() const { return models.transport->count("POST", u"auth/device/start"_s); }

    ModelRig models;
    MemoryLoginItem loginItem;
    std::unique_ptr<AppModel> model;
    std::unique_ptr<SetupServices> setup;
    std::unique_ptr<ViewRig> view;
    QString why;
};

} // namespace

class SignInPanelTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { ViewRig::prepareProcess(); }

    void showsTheCodeAndCancels()
    {
        Rig rig;
        QVERIFY2(rig.start(), qPrintable(rig.why));
        QVERIFY(rig.shows(u"signInButton"_s) && rig.view->item(u"signInButton"_s)->isEnabled());
        QVERIFY(!rig.shows(u"waitingPart"_s) && !rig.shows(u"failedPart"_s) && !rig.shows(u"donePart"_s));

        rig.click(u"signInButton"_s);
        QTRY_VERIFY(rig.waiting());
        QVERIFY(!rig.shows(u"signInButton"_s));
        const QString code = rig.code();
        QVERIFY(rig.models.server.sandbox().devices().waiting(code).has_value());
        // A screen reader spells the code out.
        QAccessibleInterface *reader = QAccessible::queryAccessibleInterface(rig.view->item(u"code"_s));
        QVERIFY(reader);
        QCOMPARE(reader->text(QAccessible::Name), SetupServices::spokenCode(code));
        // The browser was sent to the page, and can be sent again.
        QCOMPARE(rig.models.opened.size(), 1);
        QVERIFY(rig.models.opened.constFirst().toString().contains(code));
        rig.click(u"openAgainButton"_s);
        QCOMPARE(rig.models.opened, QList<QUrl>(2, rig.models.opened.constFirst()));

        rig.click(u"cancelButton"_s);
        QTRY_VERIFY(rig.shows(u"signInButton"_s));
        QVERIFY(rig.view->item(u"signInButton"_s)->isEnabled());
        QVERIFY(!rig.shows(u"waitingPart"_s));
        // Approving the old code now changes nothing: the panel stopped asking.
        QVERIFY(rig.models.server.sandbox().devices().approve(code));
        QTest::qWait(150);
        QVERIFY(rig.shows(u"signInButton"_s) && !rig.models.keychain.token());
    }

    void tryAgainAsksForANewCode()
    {
        Rig rig;
        QVERIFY2(rig.start(), qPrintable(rig.why));
        rig.models.server.sandbox().faults().plant(u"auth/device/poll"_s,
                                                   {.status = 400, .body = R"({"error":"expired_token"})", .count = 1});
        rig.click(u"signInButton"_s);
        QTRY_VERIFY(rig.shows(u"failedPart"_s));
        QCOMPARE(rig.view->text(u"failureMessage"_s), u"That code expired. Try again."_s);
        QVERIFY(!rig.shows(u"signInButton"_s));
        QCOMPARE(rig.starts(), 1);

        rig.click(u"tryAgainButton"_s);
        QTRY_VERIFY(rig.waiting());
        QCOMPARE(rig.starts(), 2);
        QCOMPARE(rig.models.opened.size(), 2);
        QVERIFY(rig.models.opened.at(1) != rig.models.opened.at(0));
        QVERIFY(rig.models.opened.at(1).toString().contains(rig.code()));
    }

    // The model takes over: signed in, and its first refresh brings the account.
    void approvalSignsTheModelIn()
    {
        Rig rig;
        QVERIFY2(rig.start(), qPrintable(rig.why));
        QVERIFY(rig.model->needsSignIn());
        QCOMPARE(rig.setup->signedInLabel(), QString());
        QSignalSpy label(rig.setup.get(), &SetupServices::signedInLabelChanged);

        rig.click(u"signInButton"_s);
        QTRY_VERIFY(rig.waiting());
        QVERIFY(rig.models.server.sandbox().devices().approve(rig.code()));
        QTRY_VERIFY(rig.shows(u"donePart"_s));
        QVERIFY(!rig.shows(u"waitingPart"_s));
        QVERIFY(!rig.model->needsSignIn());
        QVERIFY(rig.models.keychain.token().has_value());
        QTRY_VERIFY(rig.model->account().has_value());
        QVERIFY(label.count() > 0);
        QCOMPARE(rig.setup->signedInLabel(), u"Signed in as "_s + rig.model->account()->email);
    }
};

QTEST_MAIN(SignInPanelTest)
#include "tst_sign_in_panel.moc"
