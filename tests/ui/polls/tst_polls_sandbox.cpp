// The polls screen against the sandbox on loopback: a poll made from the sheet, its link on
// the clipboard, a guest's vote on the public page, and a delete through the confirmation
// after which the link stops working.
#include "ui/components/SandboxScreen.h"

#include <QCoroTask>
#include <QQuickStyle>

#include "QuorvaneQmlModules.h"

using namespace quorvane;
using namespace quorvane::test;
using namespace Qt::StringLiterals;

class TestPollsSandbox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QQuickStyle::setStyle(u"Fusion"_s);
        registerAppForQml();
    }

    void createVoteDelete()
    {
        SandboxScreen screen;
        QVERIFY2(screen.start("import QtQuick\nimport Quorvane.App\nimport Quorvane.Polls\n"
                              "Window { width: 900; height: 700; visible: true; PollsView { anchors.fill: parent }\n"
                              "Loader { active: App.showNewPoll; sourceComponent: Component { NewPollSheet {} } } }"),
                 qPrintable(screen.why));
        ModelRig &rig = screen.models;
        AppModel *model = screen.model.get();
        View &view = *screen.view;
        const qsizetype before = model->snapshot().polls.size();

        // The sheet: a title, the default type, Return.
        view.click(u"newPollButton"_s);
        QTRY_VERIFY(view.shows(u"pollTitle"_s));
        QVERIFY(!view.item(u"createPoll"_s)->isEnabled());
        for (const char c : QByteArray("Offsite"))
            QTest::keyClick(view.window, c);
        QVERIFY(view.item(u"createPoll"_s)->isEnabled());
        view.key(Qt::Key_Return);
        QTRY_VERIFY(!model->showNewPoll());
        QTRY_COMPARE(model->snapshot().polls.size(), before + 1);
        const Poll made = model->snapshot().polls.last();
        QCOMPARE(made.title, u"Offsite"_s);
        QTRY_COMPARE(rig.clipboard.texts.size(), 1);
        const QString link = rig.clipboard.texts.first();
        QVERIFY2(link.endsWith(u"/poll/"_s + made.id), qPrintable(link));

        // A guest votes for the first time on the public page; the count shows after a refresh.
        const QString page = u"/poll/"_s + made.id;
        QCOMPARE(rig.server.postForm(page, {{u"name"_s, u"Guest"_s}, {u"option"_s, u"0"_s}}).status, 200);
        QCoro::waitFor(model->refresh());
        QCOMPARE(model->snapshot().polls.last().options.first().votes, 1);
        QTRY_COMPARE(view.all(u"votersLine"_s).last()->property("text").toString(), u"Voters: Guest"_s);

        // Delete asks first; after it, the page is gone.
        view.click(view.all(u"deletePoll"_s).last());
        QTRY_VERIFY(view.shows(u"confirmAction"_s));
        view.click(u"confirmAction"_s);
        QTRY_COMPARE(model->snapshot().polls.size(), before);
        QCOMPARE(rig.server.get(page, {}).status, 404);
    }
};

QTEST_MAIN(TestPollsSandbox)
#include "tst_polls_sandbox.moc"
