// The settings panes against the sandbox on loopback, the keyring of the test's own session
// and a notification server on a private bus: signing out, and the reminder time.
#include "ModelRig.h"
#include "onboarding/SetupServices.h"
#include "support/MemoryLoginItem.h"
#include "ui/components/ItemLookup.h"

#include <QCoroTask>
#include <QQmlEngine>
#include <QQuickStyle>

#include "QuorvaneQmlModules.h"

using namespace quorvane;
using namespace quorvane::test;
using namespace Qt::StringLiterals;

namespace {

SetupServices *setupForQml = nullptr;

// One pane in a window, on a model signed in to the sandbox with its data loaded.
struct Rig {
    bool start(const QByteArray &pane)
    {
        if (!models.ready(&why))
            return false;
        model = models.makeModel();
        appForQml = model.get();
        setup = std::make_unique<SetupServices>(*model, models.environment(), loginItem);
        setupForQml = setup.get();
        QCoro::waitFor(model->refresh());
        view = std::make_unique<View>("import QtQuick\nimport Quorvane.Settings\nWindow { width: 520; height: 400; "
                                      "visible: true; "
                                      + pane + " { anchors.fill: parent } }");
        why = view->warnings.join(u'\n');
        return view->ready();
    }

    ModelRig models;
    MemoryLoginItem loginItem;
    std::unique_ptr<AppModel> model;
    std::unique_ptr<SetupServices> setup;
    std::unique_ptr<View> view;
    QString why;
};

} // namespace

class TestSettingsSandbox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QQuickStyle::setStyle(u"Fusion"_s);
        registerAppForQml();
        qmlRegisterSingletonType<SetupServices>("Quorvane.App", 1, 0, "Setup", [](QQmlEngine *, QJSEngine *) {
            QQmlEngine::setObjectOwnership(setupForQml, QQmlEngine::CppOwnership);
            return setupForQml;
        });
    }

    // Signing out from Account, once confirmed, takes the token out of the keyring.
    void signOutRemovesTheToken()
    {
        Rig rig;
        QVERIFY2(rig.start("AccountSettings"), qPrintable(rig.why));
        View &view = *rig.view;
        QVERIFY(rig.models.keychain.token().has_value());
        QTRY_VERIFY(view.shows(u"signOutButton"_s));
        view.click(u"signOutButton"_s);
        QTRY_VERIFY(view.shows(u"confirmAction"_s));
        view.click(u"confirmAction"_s);
        QTRY_VERIFY(!rig.model->account().has_value());
        QVERIFY(!rig.models.keychain.token().has_value());
        QTRY_VERIFY(view.shows(u"signInButton"_s));
    }

    // A new "Remind me" moves the pending reminder of a coming meeting at once.
    void remindMeMovesTheReminders()
    {
        Rig rig;
        QVERIFY2(rig.start("NotificationSettings"), qPrintable(rig.why));
        const Booking b = rig.models.guestBooks(u"Maya Lindqvist"_s, rig.models.clock.now().addSecs(3 * 3600));
        QCoro::waitFor(rig.model->refresh());
        const auto fireAt = [&]() -> std::optional<Instant> {
            for (const NotificationRequest &r : rig.models.notifier->pending())
                if (r.bookingID == b.id)
                    return r.fireAt;
            return std::nullopt;
        };
        QCOMPARE(fireAt(), std::optional(b.start.addSecs(-5 * 60)));
        View &view = *rig.view;
        QTRY_VERIFY(view.shows(u"remindMe"_s));
        QVERIFY(QMetaObject::invokeMethod(view.item(u"remindMe"_s), "activated", Q_ARG(int, 4)));
        QCOMPARE(rig.model->reminderMinutes(), 15);
        QCOMPARE(fireAt(), std::optional(b.start.addSecs(-15 * 60)));

        view.click(u"remindersSwitch"_s); // off: nothing pending
        QTRY_VERIFY(!rig.model->notifyReminders());
        QCOMPARE(fireAt(), std::nullopt);
    }
};

QTEST_MAIN(TestSettingsSandbox)
#include "tst_settings_sandbox.moc"
