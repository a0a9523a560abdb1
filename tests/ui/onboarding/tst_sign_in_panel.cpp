// The sign-in panel driven like a user would, against the sandbox on loopback and the test
// session's keyring. The flow's own rules are tst_device_sign_in's.
#include "ModelRig.h"
#include "onboarding/DeviceSignIn.h"
#include "onboarding/SetupServices.h"
#include "support/MemoryLoginItem.h"
#include "ui/components/ItemLookup.h"

#include <QAccessible>
#include <QQuickStyle>

#include "QuorvaneQmlModules.h"

using namespace quorvane;
using namespace quorvane::test;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

SetupServices *setupForQml = nullptr; // `Setup` in QML

// The model of the rig, signed out, with the services the panel gets its sign-in from.
struct Rig {
    // False, with the reason in `why`, when a part of the rig didn't start.
    bool start()
    {
        if (!models.ready(&why))
            return false;
        models.keychain.write({});
        model = models.makeModel();
        setup =
            std::make_unique<SetupServices>(*model, models.environment(), loginItem, DeviceSignIn::Timings{20ms, 600s});
        setupForQml = setup.get();
        view = std::make_unique<View>("import QtQuick\nimport Quorvane.Onboarding\nWindow { width: 420; height: 220; "
                                      "visible: true; SignInPanel { x: 20; y: 20; width: 380 } }");
        why = view->warnings.join(u'\n');
        return view->ready();
    }
    [[nodiscard]] bool shows(const QString &name) const { return view->shows(name); }
    [[nodiscard]] QString code() const { return view->text(u"code"_s); }

    ModelRig models;
    MemoryLoginItem loginItem;
    std::unique_ptr<AppModel> model;
    std::unique_ptr<SetupServices> setup;
    std::unique_ptr<View> view;
    QString why;
};

} // namespace

class SignInPanelTest : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase()
    {
        QQuickStyle::setStyle(u"Fusion"_s);
        qmlRegisterSingletonType<SetupServices>("Quorvane.App", 1, 0, "Setup", [](QQmlEngine *, QJSEngine *) {
            QQmlEngine::setObjectOwnership(setupForQml, QQmlEngine::CppOwnership);
            return setupForQml;
        });
    }

    void showsTheCodeAndCancels()
    {
        Rig rig;
        QVERIFY2(rig.start(), qPrintable(rig.why));
        QVERIFY(rig.shows(u"signInButton"_s) && !rig.shows(u"waitingPart"_s) && !rig.shows(u"failedPart"_s));
        rig.view->click(u"signInButton"_s);
        QTRY_VERIFY(rig.shows(u"waitingPart"_s) && !rig.code().isEmpty());
        QVERIFY(!rig.shows(u"signInButton"_s));
        const QString code = rig.code();
        QVERIFY(rig.models.server.sandbox().devices().waiting(code).has_value());
        // A screen reader spells the code out.
        QAccessibleInterface *reader = QAccessible::queryAccessibleInterface(rig.view->item(u"code"_s));
        QCOMPARE(reader->text(QAccessible::Name), SetupServices::spokenCode(code));
        // The browser was sent to the page, and can be sent again.
        QCOMPARE(rig.models.opened.size(), 1);
        QVERIFY(rig.models.opened.constFirst().toString().contains(code));
        rig.view->click(u"openAgainButton"_s);
        QCOMPARE(rig.models.opened, QList<QUrl>(2, rig.models.opened.constFirst()));

        rig.view->click(u"cancelButton"_s);
        QTRY_VERIFY(rig.shows(u"signInButton"_s) && !rig.shows(u"waitingPart"_s));
        QVERIFY(rig.view->item(u"signInButton"_s)->isEnabled());
        // Approving the old code now changes nothing: the panel stopped asking.
        QVERIFY(rig.models.server.sandbox().devices().approve(code));
        QTest::qWait(150);
        QVERIFY(rig.shows(u"signInButton"_s) && !rig.models.keychain.token());
    }

    // An expired code fails; Try Again asks for a new one, and approving that signs in.
    void tryAgainThenApproval()
    {
        Rig rig;
        QVERIFY2(rig.start(), qPrintable(rig.why));
        rig.models.server.sandbox().faults().plant(u"auth/device/poll"_s,
                                                   {.status = 400, .body = R"({"error":"expired_token"})", .count = 1});
        rig.view->click(u"signInButton"_s);
        QTRY_VERIFY(rig.shows(u"failedPart"_s));
        QCOMPARE(rig.view->text(u"failureMessage"_s), u"That code expired. Try again."_s);
        QVERIFY(!rig.shows(u"signInButton"_s));

        rig.view->click(u"tryAgainButton"_s);
        QTRY_VERIFY(rig.shows(u"waitingPart"_s) && !rig.code().isEmpty());
        QCOMPARE(rig.models.transport->count("POST", u"auth/device/start"_s), 2);
        QCOMPARE(rig.models.opened.size(), 2);
        QVERIFY(rig.models.opened.at(1) != rig.models.opened.at(0));
        QVERIFY(rig.models.opened.at(1).toString().contains(rig.code()));

        QVERIFY(rig.models.server.sandbox().devices().approve(rig.code()));
        QTRY_VERIFY(rig.shows(u"donePart"_s) && !rig.shows(u"waitingPart"_s));
        QVERIFY(!rig.model->needsSignIn() && rig.models.keychain.token().has_value());
        QTRY_VERIFY(rig.model->account().has_value());
        QCOMPARE(rig.setup->signedInLabel(), u"Signed in as "_s + rig.model->account()->email);
    }
};

QTEST_MAIN(SignInPanelTest)
#include "tst_sign_in_panel.moc"
