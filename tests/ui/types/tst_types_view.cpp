// The event types screen in the main window on the fixture app, used with the keyboard and
// the mouse: the slug field as the user types, a palette chip, moving a type with Alt and the
// arrows, and Ctrl+N.
#include "FixtureApp.h"
#include "ui/components/ItemLookup.h"

#include <QAccessible>
#include <QQuickStyle>

#include "QuorvaneQmlModules.h"

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::test;

namespace {

struct Rig : FixtureApp, View {
    Rig()
        : View({}, QUrl(u"qrc:/qt/qml/Quorvane/Main/MainWindow.qml"_s))
    {}
    bool open()
    {
        if (!ready())
            return false;
        model().setSection(AppSection::types);
        QTest::qWait(50);
        types = item(u"typeList"_s) ? item(u"typeList"_s)->property("types").value<QObject *>() : nullptr;
        return types != nullptr;
    }
    void select(const QString &id) const { types->setProperty("selection", id); }
    [[nodiscard]] QStringList order()
    {
        QStringList out;
        for (const EventType &t : model().draftSettings()->eventTypes)
            out.append(t.id);
        return out;
    }
    [[nodiscard]] EventType draft(const QString &id)
    {
        for (const EventType &t : model().draftSettings()->eventTypes)
            if (t.id == id)
                return t;
        return {};
    }
    void type(const char *text) const
    {
        for (; *text; ++text)
            QTest::keyClick(window, *text);
    }
    QObject *types = nullptr;
};

} // namespace

class TestTypesView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QQuickStyle::setStyle(u"Fusion"_s);
        FixtureApp::registerQmlSingletons();
    }

    // The first type is selected on arrival; each key is rewritten at once, but for a final
    // hyphen, which stays until the next letter.
    void slugField()
    {
        Rig rig;
        QVERIFY2(rig.open(), qPrintable(rig.warnings.join(u'\n')));
        QCOMPARE(rig.types->property("selection").toString(), u"et-intro"_s);
        QQuickItem *field = rig.item(u"slugField"_s);
        field->forceActiveFocus();
        QMetaObject::invokeMethod(field, "selectAll");
        rig.type("Hello-");
        QCOMPARE(field->property("text").toString(), u"hello-"_s);
        QCOMPARE(rig.draft(u"et-intro"_s).slug, u"hello-"_s);
        rig.type("W!");
        QCOMPARE(field->property("text").toString(), u"hello-w"_s);
        QCOMPARE(rig.draft(u"et-intro"_s).slug, u"hello-w"_s);
        QVERIFY(rig.text(u"fullLink"_s).endsWith(u"/ilse/hello-w"_s));
        QVERIFY(rig.warnings.isEmpty());
    }

    // A chip sets the colour; its ring comes, the old one goes, and the list follows.
    void paletteChip()
    {
        Rig rig;
        QVERIFY(rig.open());
        rig.select(u"et-consult"_s);
        QTest::qWait(50);
        const QList<QQuickItem *> chips = rig.all(u"colorChip"_s);
        QCOMPARE(chips.size(), 9);
        rig.click(chips.at(2));
        QCOMPARE(rig.draft(u"et-consult"_s).colorHex, u"#BF5AF2"_s);
        QTRY_COMPARE(rig.all(u"chipRing"_s).at(2)->opacity(), 1.0);
        QTRY_COMPARE(rig.all(u"chipRing"_s).at(0)->opacity(), 0.0);
        QCOMPARE(rig.all(u"typeSquare"_s).at(1)->property("gradient").isValid(), true);
        // Space on a focused chip does the same.
        chips.at(4)->forceActiveFocus(Qt::TabFocusReason);
        rig.key(Qt::Key_Space);
        QCOMPARE(rig.draft(u"et-consult"_s).colorHex, u"#FF375F"_s);

        // The well's dialog starts at the type's colour and gives back a hex text.
        rig.click(u"colorWell"_s);
        QObject *dialog = rig.engine.rootObjects().first()->findChild<QObject *>(u"colorDialog"_s);
        QVERIFY(dialog);
        QTRY_VERIFY(dialog->property("visible").toBool());
        QCOMPARE(dialog->property("selectedColor").value<QColor>(), QColor(u"#FF375F"_s));
        dialog->setProperty("selectedColor", QColor::fromRgbF(0.07, 0.23, 0.74));
        QMetaObject::invokeMethod(dialog, "accept");
        QCOMPARE(rig.draft(u"et-consult"_s).colorHex, u"#123BBD"_s);
        QVERIFY2(rig.warnings.isEmpty(), qPrintable(rig.warnings.join(u'\n')));
    }

    // The arrows select, Alt with them moves the selected type, and the selection stays on it.
    void keyboardReorder()
    {
        Rig rig;
        QVERIFY(rig.open());
        rig.item(u"typeList"_s)->forceActiveFocus();
        rig.key(Qt::Key_Down);
        QCOMPARE(rig.types->property("selection").toString(), u"et-consult"_s);
        rig.key(Qt::Key_Down, Qt::AltModifier);
        rig.key(Qt::Key_Down, Qt::AltModifier);
        rig.key(Qt::Key_Down, Qt::AltModifier); // already last: stays
        QCOMPARE(rig.order(), (QStringList{u"et-intro"_s, u"et-deep-dive"_s, u"et-office-hours"_s, u"et-consult"_s}));
        QCOMPARE(rig.types->property("currentRow").toInt(), 3);
        rig.key(Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(rig.order().at(2), u"et-consult"_s);
        rig.key(Qt::Key_Up);
        QCOMPARE(rig.types->property("selection").toString(), u"et-deep-dive"_s);
    }

    // A row dragged two rows down lands there, selected or not.
    void dragReorder()
    {
        Rig rig;
        QVERIFY(rig.open());
        const QQuickItem *row = rig.all(u"typeSquare"_s).at(0);
        const QPoint from = row->mapToScene(QPointF(row->width() / 2, row->height() / 2)).toPoint();
        const int rowHeight = qRound(rig.all(u"typeSquare"_s).at(1)->mapToScene({}).y() - row->mapToScene({}).y());
        QTest::mousePress(rig.window, Qt::LeftButton, {}, from);
        for (int step = 1; step <= 10; ++step)
            QTest::mouseMove(rig.window, from + QPoint(0, step * 2 * rowHeight / 10));
        QTest::mouseRelease(rig.window, Qt::LeftButton, {}, from + QPoint(0, 2 * rowHeight));
        QCOMPARE(rig.order(), (QStringList{u"et-consult"_s, u"et-deep-dive"_s, u"et-intro"_s, u"et-office-hours"_s}));
    }

    // Tab walks every control of the editor, and each has a name to be read out.
    void tabWalk()
    {
        Rig rig;
        QVERIFY(rig.open());
        rig.select(u"et-deep-dive"_s); // with a question and its remove button
        QTest::qWait(50);
        rig.item(u"colorWell"_s)->forceActiveFocus(Qt::TabFocusReason);
        QStringList names;
        for (int i = 0; i < 40 && !names.contains(u"Add"_s); ++i) {
            // A control's inner field takes the focus for it (a stepper's number, say).
            QQuickItem *focused = rig.window->activeFocusItem();
            QString name;
            for (QQuickItem *at = focused; at && name.isEmpty() && at != focused->parentItem()->parentItem();
                 at = at->parentItem()) {
                const QAccessibleInterface *face = QAccessible::queryAccessibleInterface(at);
                name = face ? face->text(QAccessible::Name) : QString();
            }
            QVERIFY2(!name.isEmpty(), focused->metaObject()->className());
            names.append(name);
            // "Add" takes the focus once there is a question to add.
            if (name == u"Add a required question"_s)
                rig.type("Phone?");
            rig.key(Qt::Key_Tab);
        }
        for (const QString &expected :
             {u"Color"_s, u"Title"_s, u"Active"_s, u"Color #5E5CE6"_s, u"Description"_s, u"URL slug"_s, u"Copy"_s,
              u"Open"_s, u"Duration"_s, u"Buffer before"_s, u"Buffer after"_s, u"Where"_s,
              u"Remove question What should we cover?"_s, u"Add a required question"_s, u"Add"_s})
            QVERIFY2(names.contains(expected), qPrintable(expected + u" not in "_s + names.join(u" | "_s)));
    }

    // Ctrl+N adds a type and opens it in the editor; the minus deletes it again.
    void newAndDelete()
    {
        Rig rig;
        QVERIFY(rig.open());
        rig.key(Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(rig.order().size(), 5);
        QTRY_COMPARE(rig.text(u"titleField"_s), u"New Meeting"_s);
        QCOMPARE(rig.text(u"slugField"_s), u"meeting"_s);
        QVERIFY(rig.item(u"deleteType"_s)->isEnabled());
        rig.click(u"deleteType"_s);
        QCOMPARE(rig.order().size(), 4);
        QTRY_COMPARE(rig.text(u"titleField"_s), u"Intro Call"_s);
    }
};

QTEST_MAIN(TestTypesView)
#include "tst_types_view.moc"
