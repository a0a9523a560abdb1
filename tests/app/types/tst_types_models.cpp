// The event types list and editor on the fixture app (Intro Call, Consultation, Deep Dive and
// Office Hours, which is off): what each action leaves in the draft and where the selection
// goes.
#include "FixtureApp.h"
#include "types/EventTypeEditorModel.h"
#include "types/EventTypeListModel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quorvane;
using test::FixtureApp;

namespace {

QList<EventType> draftTypes(FixtureApp &app)
{
    return app.model().draftSettings()->eventTypes;
}

QStringList ids(FixtureApp &app)
{
    QStringList out;
    for (const EventType &t : draftTypes(app))
        out.append(t.id);
    return out;
}

// The list on the fixture, checked by the tester through every change.
struct List {
    explicit List(FixtureApp &app) { model.setApp(&app.model()); }
    EventTypeListModel model;
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::QtTest};
};

} // namespace

class TestTypesModels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Two new types at the end, each selected, with the next colours and free slugs.
    void addTwice()
    {
        FixtureApp app;
        List list(app);
        QSignalSpy edits(&app.model(), &AppModel::draftSettingsChanged);
        list.model.add();
        list.model.add();
        QCOMPARE(edits.size(), 2);
        const QList<EventType> types = draftTypes(app);
        QCOMPARE(types.size(), 6);
        QCOMPARE(list.model.rowCount(), 6);
        QCOMPARE((QStringList{types[4].slug, types[5].slug}), (QStringList{u"meeting"_s, u"meeting-2"_s}));
        QCOMPARE((QStringList{types[4].colorHex, types[5].colorHex}), (QStringList{u"#FF375F"_s, u"#64D2FF"_s}));
        QCOMPARE(list.model.selection(), types[5].id);
        QCOMPARE(list.model.currentRow(), 5);
    }

    void duplicateTwice()
    {
        FixtureApp app;
        List list(app);
        list.model.duplicate(0);
        list.model.duplicate(0);
        const QList<EventType> types = draftTypes(app);
        QCOMPARE(types[4].title, u"Intro Call copy"_s);
        QCOMPARE(types[5].title, u"Intro Call copy"_s);
        QCOMPARE((QStringList{types[4].slug, types[5].slug}), (QStringList{u"intro-2"_s, u"intro-3"_s}));
        QCOMPARE(list.model.selection(), types[5].id);
    }

    // Deleting by the button (the selected row) or by a row's menu (any row).
    void remove_data()
    {
        QTest::addColumn<QString>("selected");
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("selectedAfter");
        QTest::newRow("the selected type") << u"et-consult"_s << 1 << u"et-intro"_s;
        QTest::newRow("the first, selected") << u"et-intro"_s << 0 << u"et-consult"_s;
        QTest::newRow("another type: the selection moves too") << u"et-deep-dive"_s << 0 << u"et-consult"_s;
    }
    void remove()
    {
        QFETCH(QString, selected);
        QFETCH(int, row);
        FixtureApp app;
        List list(app);
        list.model.setSelection(selected);
        const QString gone = draftTypes(app).at(row).id;
        list.model.remove(row);
        QVERIFY(!ids(app).contains(gone));
        QTEST(list.model.selection(), "selectedAfter");
    }

    void lastTypeStays()
    {
        FixtureApp app;
        List list(app);
        list.model.selectFirstIfNone();
        for (int i = 0; i < 3; ++i) {
            QVERIFY(list.model.canDelete());
            list.model.remove(list.model.currentRow());
        }
        QCOMPARE(ids(app), QStringList{u"et-office-hours"_s});
        QCOMPARE(list.model.selection(), u"et-office-hours"_s);
        QVERIFY(!list.model.canDelete());
        QSignalSpy edits(&app.model(), &AppModel::draftSettingsChanged);
        list.model.remove(0);
        QVERIFY(edits.isEmpty());
        QCOMPARE(list.model.rowCount(), 1);
    }

    // The selected type moves and stays selected; the ends hold.
    void reorder()
    {
        FixtureApp app;
        List list(app);
        list.model.setSelection(u"et-deep-dive"_s);
        list.model.moveCurrent(-1);
        list.model.moveCurrent(-1);
        list.model.moveCurrent(-1);
        QCOMPARE(ids(app), (QStringList{u"et-deep-dive"_s, u"et-intro"_s, u"et-consult"_s, u"et-office-hours"_s}));
        QCOMPARE(list.model.currentRow(), 0);
        list.model.move(0, 3);
        QCOMPARE(ids(app).last(), u"et-deep-dive"_s);
        QCOMPARE(list.model.currentRow(), 3);
        QCOMPARE(list.model.data(list.model.index(3), EventTypeListModel::TitleRole), QVariant(u"Deep Dive"_s));
    }

    // Each change is one edit that puts the whole working copy in place of the entry.
    void editorCommits()
    {
        FixtureApp app;
        EventTypeEditorModel editor;
        editor.setApp(&app.model());
        editor.setTypeId(u"et-office-hours"_s);
        QVERIFY(editor.loaded());
        QSignalSpy edits(&app.model(), &AppModel::draftSettingsChanged);

        editor.setTitle(u"Office Hours!"_s);
        // Typed as it stands while it ends in a hyphen; the next letter rewrites it all.
        editor.setSlug(u"Walk-In-"_s);
        QCOMPARE(editor.slug(), u"Walk-In-"_s);
        editor.setSlug(u"Walk-In-h"_s);
        editor.setLocation(int(Location::allCases().indexOf(MeetingLocation::phone)));
        QCOMPARE(edits.size(), 4);
        const EventType saved = draftTypes(app).at(3);
        QCOMPARE(saved, editor.type());
        QCOMPARE(saved.slug, u"walk-in-h"_s);
        // The address stays for when the place is in person again.
        QCOMPARE(saved.locationDetail, u"Studio, 4th floor"_s);
        QVERIFY(editor.detailPrompt().isEmpty());
        QVERIFY(!editor.locationNote().isEmpty());

        // The same value again is no change.
        editor.setTitle(u"Office Hours!"_s);
        QCOMPARE(edits.size(), 4);

        // A type gone from the draft is left alone.
        EventTypeListModel list;
        list.setApp(&app.model());
        list.remove(3);
        edits.clear();
        editor.setTitle(u"Ghost"_s);
        QVERIFY(edits.isEmpty());
        QVERIFY(!ids(app).contains(u"et-office-hours"_s));
    }

    void editorQuestions()
    {
        FixtureApp app;
        EventTypeEditorModel editor;
        editor.setTypeId(u"et-deep-dive"_s); // before the model, as QML may set them
        editor.setApp(&app.model());
        QCOMPARE(editor.questions(), QStringList{u"What should we cover?"_s});

        editor.setNewQuestion(u" \t "_s);
        QVERIFY(!editor.canAddQuestion());
        editor.addQuestion();
        QCOMPARE(editor.newQuestion(), u" \t "_s);
        QCOMPARE(editor.questions().size(), 1);

        for (const QString &q : {u"Phone?"_s, u" Company\t"_s, u"Team"_s, u"Budget"_s}) {
            editor.setNewQuestion(q);
            editor.addQuestion();
            QVERIFY(editor.newQuestion().isEmpty());
        }
        QCOMPARE(draftTypes(app).at(2).questions.at(2), u"Company"_s);
        editor.setNewQuestion(u"Sixth"_s);
        QVERIFY(!editor.canAddQuestion());
        editor.addQuestion();
        QCOMPARE(editor.questions().size(), 5);
        QCOMPARE(editor.newQuestion(), u"Sixth"_s);

        editor.removeQuestion(0);
        QCOMPARE(draftTypes(app).at(2).questions.first(), u"Phone?"_s);
        QVERIFY(editor.canAddQuestion());
    }

    // 37 minutes is offered among the others, and choosing by position sets the minutes.
    void editorDurations()
    {
        FixtureApp app;
        app.model().editSettings([](HostSettings &s) { s.eventTypes[1].minutes = 37; });
        EventTypeEditorModel editor;
        editor.setApp(&app.model());
        editor.setTypeId(u"et-consult"_s);
        QCOMPARE(editor.durationLabels().at(editor.durationIndex()), u"37 min"_s);
        QCOMPARE(editor.durationLabels().at(editor.durationIndex() + 1), u"45 min"_s);
        editor.setDurationIndex(editor.durationIndex() + 1);
        QCOMPARE(draftTypes(app).at(1).minutes, 45);
        // 37 is no longer offered once left.
        QVERIFY(!editor.durationLabels().contains(u"37 min"_s));
    }
};

QTEST_MAIN(TestTypesModels)
#include "tst_types_models.moc"
