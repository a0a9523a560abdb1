// The words a launch, the desktop or a script may send the running app, each doing what its
// menu item does, on a model against the sandbox.
#include "ModelRig.h"

#include "shell/Activation.h"
#include "shell/CommandTable.h"
#include "shell/LaunchOptions.h"
#include "shell/ShellController.h"

#include <QCoroTask>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::test;

class TestActivation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wordsRunTheirCommands()
    {
        ModelRig rig;
        QString why;
        QVERIFY2(rig.ready(&why), qPrintable(why));
        sandbox::Backend &backend = rig.server.sandbox().backend();
        for (const Booking &b : backend.upcoming())
            backend.cancel(b.id);
        const Booking ann = rig.guestBooks(u"Ann Lee"_s, rig.clock.now().addSecs(25 * 60));
        QVERIFY(ann.meetURL());
        std::unique_ptr<AppModel> model = rig.makeModel();
        QCoro::waitFor(model->refresh());
        ShellController shell;
        CommandTable commands(*model, shell, rig.opener);
        Activation activation(commands, shell);
        QSignalSpy opened(&shell, &ShellController::openRequested);
        const auto window = [&opened] { return opened.takeFirst().at(0).value<AppWindow::Id>(); };

        QVERIFY(activation.activate(u"share"_s));
        QCOMPARE(window(), AppWindow::Share);
        // The palette shows in the main window, which comes up for it.
        QVERIFY(activation.activate(u"palette"_s));
        QCOMPARE(window(), AppWindow::Main);
        QVERIFY(model->showPalette());
        QVERIFY(activation.activate(u"join-next"_s));
        QCOMPARE(rig.opened, QList<QUrl>{*ann.meetURL()});
        QVERIFY(!activation.activate(u"lunch"_s));
        QVERIFY(opened.isEmpty());
        // Every window a launch may ask for reaches the running app.
        for (const QString &id : LaunchOptions::windowIds())
            QVERIFY2(Activation::names().contains(id), qPrintable(id));

        // With no meeting ahead, joining opens nothing.
        backend.cancel(ann.id);
        QCoro::waitFor(model->refresh());
        QVERIFY(activation.activate(u"join-next"_s));
        QCOMPARE(rig.opened.size(), 1);
    }
};

QTEST_GUILESS_MAIN(TestActivation)
#include "tst_activation.moc"
