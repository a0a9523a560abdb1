// The command palette over the main window on the fixture app: Ctrl+K, a guest's name and
// Return select that booking; the arrows, Escape, a click on a row and on the backdrop.
#include "FixtureApp.h"
#include "ui/components/ItemLookup.h"

#include <QCoroTask>
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
    // Ctrl+K, with the main window in front.
    bool open()
    {
        if (!ready())
            return false;
        window->requestActivate();
        if (!QTest::qWaitForWindowActive(window))
            return false;
        key(Qt::Key_K, Qt::ControlModifier);
        return QTest::qWaitFor(
            [this] { return shows(u"paletteQuery"_s) && item(u"paletteQuery"_s)->hasActiveFocus(); });
    }
    void type(const QString &text) const
    {
        for (const QChar c : text)
            QTest::keyClick(window, c.toLatin1());
    }
    [[nodiscard]] QObject *model() const { return item(u"paletteList"_s)->property("model").value<QObject *>(); }
};

} // namespace

class TestPaletteView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QQuickStyle::setStyle(u"Fusion"_s);
        FixtureApp::registerQmlSingletons();
    }

    void guestNameSelectsBooking()
    {
        Rig rig;
        QVERIFY2(rig.open(), qPrintable(rig.warnings.join(u'\n')));
        QTRY_COMPARE(rig.all(u"paletteRow"_s).size(), 12);
        rig.key(Qt::Key_Down);
        rig.key(Qt::Key_Down);
        QCOMPARE(rig.model()->property("index").toInt(), 2);
        // Typing starts again at the top.
        rig.type(u"Hannah"_s);
        QCOMPARE(rig.model()->property("index").toInt(), 0);
        const QString first = rig.all(u"paletteRow"_s).first()->property("title").toString();
        QVERIFY2(first.startsWith(u"Hannah Okafor"_s), qPrintable(first));
        rig.key(Qt::Key_Return);
        QTRY_VERIFY(!rig.FixtureApp::model().showPalette());
        QCOMPARE(rig.FixtureApp::model().section(), AppSection::bookings);
        QVERIFY(rig.FixtureApp::model().selectedBooking().has_value());
        QTRY_COMPARE(rig.item(u"detailName"_s)->property("text").toString(), u"Hannah Okafor"_s);
    }

    void escapeClickAndBackdrop()
    {
        Rig rig;
        QVERIFY2(rig.open(), qPrintable(rig.warnings.join(u'\n')));
        rig.type(u"zzqx"_s);
        QVERIFY(rig.shows(u"paletteNoMatches"_s));
        rig.key(Qt::Key_Return);
        QVERIFY(rig.FixtureApp::model().showPalette());
        rig.key(Qt::Key_Escape);
        QTRY_VERIFY(!rig.shows(u"paletteQuery"_s));

        // Opened again it is empty; a click on a row runs it.
        QVERIFY(rig.open());
        QCOMPARE(rig.text(u"paletteQuery"_s), QString());
        QTRY_COMPARE(rig.all(u"paletteRow"_s).size(), 12);
        rig.click(rig.all(u"paletteRow"_s).at(4)); // Go to Polls
        QTRY_VERIFY(!rig.FixtureApp::model().showPalette());
        QCOMPARE(rig.FixtureApp::model().section(), AppSection::polls);

        // A click beside the panel closes it.
        QVERIFY(rig.open());
        QTest::mouseClick(rig.window, Qt::LeftButton, {}, QPoint(10, rig.window->height() - 10));
        QTRY_VERIFY(!rig.FixtureApp::model().showPalette());
    }
};

QTEST_MAIN(TestPaletteView)
#include "tst_palette_view.moc"
