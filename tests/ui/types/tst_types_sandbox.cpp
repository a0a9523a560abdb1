// The event types screen against the sandbox on loopback, as a new host uses it: a type added
// and named, its slug typed, 45 minutes, a phone call and two questions; after the pause the
// server holds it and the guests' booking page offers it under the new slug, which "Open"
// opens. Then it moves to the top of the page and is deleted.
#include "ui/components/SandboxScreen.h"

#include <QQuickStyle>

#include "QuorvaneQmlModules.h"

using namespace quorvane;
using namespace quorvane::test;
using namespace Qt::StringLiterals;

namespace {

constexpr int saveWait = 10'000; // ms: the pause before a save, on a busy machine

struct Rig : SandboxScreen {
    bool start() { return SandboxScreen::start("Quorvane.Types", "EventTypesView", {1100, 900}); }
    // Replaces a field's text by typing, one key at a time.
    void type(const QString &field, const QString &text) const
    {
        QQuickItem *item = view->item(field);
        QVERIFY(item);
        item->forceActiveFocus();
        QMetaObject::invokeMethod(item, "selectAll");
        for (const QChar c : text)
            QTest::keyClick(view->window, c.toLatin1());
    }
    void choose(const QString &combo, int index) const
    {
        QQuickItem *item = view->item(combo);
        QVERIFY(item);
        item->setProperty("currentIndex", index);
        QMetaObject::invokeMethod(item, "activated", Q_ARG(int, index));
    }
    [[nodiscard]] std::optional<EventType> held(const QString &id)
    {
        for (const EventType &t : models.server.sandbox().backend().settings().eventTypes)
            if (t.id == id)
                return t;
        return std::nullopt;
    }
    // The guests' page of the host, and of one type.
    [[nodiscard]] QString hostPage() { return QString::fromUtf8(models.server.get(u"/jordan"_s, {}).body); }
    [[nodiscard]] sandbox::SandboxHarness::Response typePage(const QString &slug)
    {
        return models.server.get(u"/jordan/"_s + slug, {});
    }
    [[nodiscard]] bool saved() const { return !model->saving() && !model->banner(); }
};

} // namespace

class TestTypesSandbox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QQuickStyle::setStyle(u"Fusion"_s);
        registerAppForQml();
    }

    void officeHours()
    {
        Rig rig;
        QVERIFY2(rig.start(), qPrintable(rig.why));
        QObject *types = rig.view->item(u"typeList"_s)->property("types").value<QObject *>();
        QVERIFY(types);
        const int before = int(rig.model->draftSettings()->eventTypes.size());

        rig.view->click(u"addType"_s);
        QTRY_COMPARE(types->property("count").toInt(), before + 1);
        const QString id = types->property("selection").toString();
        QTRY_VERIFY(rig.view->shows(u"titleField"_s));
        rig.type(u"titleField"_s, u"Office Hours"_s);
        rig.type(u"slugField"_s, u"Office-Hours"_s);
        QCOMPARE(rig.view->text(u"slugField"_s), u"office-hours"_s);
        rig.choose(u"durationChoice"_s, 5); // 10, 15, 20, 25, 30, 45
        rig.choose(u"locationChoice"_s, 1);
        for (const QString &question : {u"Best number to reach you"_s, u"  What's it about?  "_s}) {
            rig.type(u"questionField"_s, question);
            rig.view->key(Qt::Key_Return);
        }

        // After the pause, the server and the guests' page have it all.
        QTRY_VERIFY_WITH_TIMEOUT(rig.held(id) && rig.held(id)->questions.size() == 2 && rig.saved(), saveWait);
        const EventType held = *rig.held(id);
        QCOMPARE(held.title, u"Office Hours"_s);
        QCOMPARE(held.slug, u"office-hours"_s);
        QCOMPARE(held.minutes, 45);
        QCOMPARE(held.location, MeetingLocation::phone);
        QCOMPARE(held.questions, (QStringList{u"Best number to reach you"_s, u"What's it about?"_s}));
        QCOMPARE(rig.typePage(u"meeting"_s).status, 404);
        const sandbox::SandboxHarness::Response page = rig.typePage(u"office-hours"_s);
        QCOMPARE(page.status, 200);
        QVERIFY(page.body.contains("Office Hours") && page.body.contains("45 min") && page.body.contains("Phone call"));
        QVERIFY(page.body.contains("Best number to reach you"));

        // "Open" opens that page.
        rig.view->click(u"openTypeLink"_s);
        QCOMPARE(rig.models.opened.size(), 1);
        QCOMPARE(rig.models.opened.first().toString(), rig.models.server.base() + u"/jordan/office-hours"_s);

        // To the top with the keyboard: first on the booking page too.
        rig.view->item(u"typeList"_s)->forceActiveFocus();
        for (int i = 0; i < before; ++i)
            rig.view->key(Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(rig.model->draftSettings()->eventTypes.first().id, id);
        QTRY_VERIFY_WITH_TIMEOUT(
            rig.models.server.sandbox().backend().settings().eventTypes.first().id == id && rig.saved(), saveWait);
        const QString host = rig.hostPage();
        QVERIFY(host.indexOf(u"Office Hours"_s) >= 0);
        QVERIFY(host.indexOf(u"Office Hours"_s) < host.indexOf(u"Intro Call"_s));

        // Deleted: gone from the server and from the page.
        QCOMPARE(types->property("selection").toString(), id);
        rig.view->click(u"deleteType"_s);
        QTRY_VERIFY_WITH_TIMEOUT(!rig.held(id) && rig.saved(), saveWait);
        QCOMPARE(rig.typePage(u"office-hours"_s).status, 404);
        QVERIFY(!rig.hostPage().contains(u"Office Hours"_s));
        QCOMPARE(types->property("count").toInt(), before);
        QVERIFY2(rig.view->warnings.isEmpty(), qPrintable(rig.view->warnings.join(u'\n')));
    }
};

QTEST_MAIN(TestTypesSandbox)
#include "tst_types_sandbox.moc"
