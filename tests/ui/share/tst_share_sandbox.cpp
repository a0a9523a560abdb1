// Share Times against the sandbox on loopback: the real slots of the default type, Suggest
// Best 3 and Ctrl+C put the message on the clipboard and close the window; a failing slots
// route shows the window's own error, and Retry recovers.
#include "APIError.h"
#include "share/QuickShare.h"
#include "ui/components/SandboxScreen.h"

#include <QCoroTask>
#include <QQuickStyle>

#include "QuorvaneQmlModules.h"

using namespace quorvane;
using namespace quorvane::test;
using namespace Qt::StringLiterals;

class TestShareSandbox : public QObject
{
    Q_OBJECT

    static constexpr char host[] = "import QtQuick\nimport Quorvane.Share\n"
                                   "Window { width: 560; height: 560; visible: true; QuickShareView { anchors.fill: "
                                   "parent } }";

private Q_SLOTS:
    void initTestCase()
    {
        QQuickStyle::setStyle(u"Fusion"_s);
        registerAppForQml();
    }

    void suggestAndCopy()
    {
        SandboxScreen screen;
        QVERIFY2(screen.start(host), qPrintable(screen.why));
        ModelRig &rig = screen.models;
        AppModel *model = screen.model.get();
        View &view = *screen.view;
        view.window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(view.window));
        QTRY_VERIFY(view.shows(u"dayHeading"_s));

        // What the message must say, from the server's own answer for the default type.
        QObject *share = view.item(u"quickShare"_s)->findChild<QObject *>(u"quickShareModel"_s);
        const QString slug = share->property("typeSlug").toString();
        const SlotList answer = QCoro::waitFor(model->api().slots(slug, 14, model->zone()));
        const QList<Slot> best = QuickShare::suggestBest(answer.slots, model->zone());
        QCOMPARE(best.size(), 3);
        const QString expected =
            QuickShare::text(best, model->type(slug), QuickShare::link(answer.link, model->link(*model->type(slug))),
                             model->zone(), model->locale(), model->now());

        view.click(u"suggestBest"_s);
        QTRY_VERIFY(view.shows(u"sharePreview"_s));
        QCOMPARE(view.text(u"sharePreview"_s), expected);
        view.key(Qt::Key_C, Qt::ControlModifier);
        QTRY_COMPARE(rig.clipboard.texts.size(), 1);
        QCOMPARE(rig.clipboard.texts.first(), expected);
        QCOMPARE(model->banner()->message, u"Times copied"_s);
        QTRY_VERIFY(!view.window->isVisible());

        // The next opening starts with nothing picked.
        view.window->show();
        QTRY_VERIFY(view.shows(u"dayHeading"_s));
        QVERIFY(!view.item(u"copyTimes"_s)->isEnabled());
    }

    void failureAndRetry()
    {
        SandboxScreen screen;
        // Both tries of the GET fail.
        QVERIFY2(screen.start(host,
                              [&screen](AppModel &) {
                                  screen.models.server.sandbox().faults().plant(
                                      u"sync/slots"_s, {500, R"({"error":"Slots are down"})", 0, false, 2});
                              }),
                 qPrintable(screen.why));
        ModelRig &rig = screen.models;
        AppModel *model = screen.model.get();
        View &view = *screen.view;
        QTRY_VERIFY(view.shows(u"shareError"_s));
        QCOMPARE(rig.transport->count("GET", u"sync/slots"_s), 2);
        QCOMPARE(view.item(u"shareError"_s)->property("description").toString(),
                 APIError::server(500, u"Slots are down"_s).errorDescription());
        QVERIFY(!model->banner().has_value());
        QVERIFY(view.item(u"copyLink"_s)->isEnabled());
        QVERIFY(!view.item(u"copyTimes"_s)->isEnabled());

        view.click(u"retryShare"_s);
        QTRY_VERIFY(view.shows(u"dayHeading"_s));
        QVERIFY(!view.shows(u"shareError"_s));
    }
};

QTEST_MAIN(TestShareSandbox)
#include "tst_share_sandbox.moc"
