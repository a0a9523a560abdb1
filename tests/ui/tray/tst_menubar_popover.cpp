// The tray popover on the fixture app: which parts show in each state, and what its buttons do.
#include "APIError.h"
#include "FixtureApp.h"
#include "ui/components/ItemLookup.h"

#include <QQuickStyle>
#include <QSignalSpy>

#include "QuorvaneQmlModules.h"

using namespace quorvane;
using namespace quorvane::test;
using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(quorvane::test::FixtureApp::State)

namespace {
// The popover alone on a fixture app (which outlives it), shown offscreen.
struct PopoverRig : FixtureApp, View {
    explicit PopoverRig(FixtureApp::State state = FixtureApp::State::withData)
        : FixtureApp(state)
        , View("import Quorvane.Tray\nMenuBarPopover { visible: true }")
    {}
};
} // namespace

class TestMenuBarPopover : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QQuickStyle::setStyle(u"Fusion"_s);
        FixtureApp::registerQmlSingletons();
    }

    // The popover follows PopoverContent's rules (tst_menubar_logic).
    void content_data()
    {
        QTest::addColumn<FixtureApp::State>("state");
        QTest::addColumn<bool>("revoked");  // the server refused the token; the cache stays
        QTest::addColumn<QString>("parts"); // on screen
        const QString content = u"signedInContent"_s;
        QTest::newRow("signed in") << FixtureApp::State::withData << false << content;
        QTest::newRow("signed out, nothing cached") << FixtureApp::State::signedOut << false << u"signInButton"_s;
        QTest::newRow("token revoked, data cached")
            << FixtureApp::State::withData << true << content + u" popoverBanner"_s;
        QTest::newRow("toast") << FixtureApp::State::toast << false << content + u" toast"_s;
    }
    void content()
    {
        QFETCH(FixtureApp::State, state);
        QFETCH(bool, revoked);
        QFETCH(QString, parts);
        PopoverRig view(state);
        if (revoked)
            view.model().handle(std::make_exception_ptr(APIError::unauthorized()));
        QVERIFY_READY(view);
        const auto shown = [&view] {
            QStringList out;
            for (const QString &part : {u"signedInContent"_s, u"signInButton"_s, u"popoverBanner"_s, u"toast"_s}) {
                if (view.shows(part))
                    out << part;
            }
            return out.join(u' ');
        };
        QTRY_COMPARE(shown(), parts);               // the banner slides in, the sign-in panel loads
        if (parts.startsWith(u"signedInContent"_s)) // a copy button per active type: Office Hours is off
            QCOMPARE(view.all(u"copyLink"_s).size(), 3);
    }

    void controls_data()
    {
        QTest::addColumn<QString>("control"); // object or accessible name; empty: Ctrl+Shift+J
        QTest::addColumn<QString>("effect");
        QTest::newRow("Open Quorvane") << u"openMain"_s << u"open main"_s;
        QTest::newRow("Settings") << u"settings"_s << u"open settings"_s;
        QTest::newRow("Share times") << u"shareTimes"_s << u"open share"_s;
        QTest::newRow("Quit") << u"quit"_s << u"quit"_s;
        QTest::newRow("Refresh") << u"refresh"_s << u"refresh"_s;
        QTest::newRow("copy a link") << u"Copy Consultation link"_s << u"copy https://quorvane.app/ilse/consult"_s;
        QTest::newRow("join") << QString() << u"join https://meet.google.com/qvn-0001-ilse"_s;
    }
    void controls()
    {
        QFETCH(QString, control);
        QFETCH(QString, effect);
        PopoverRig view;
        QVERIFY_READY(view);
        QSignalSpy opened(&view.shell(), &ShellController::openRequested);
        QSignalSpy quit(&view.shell(), &ShellController::quitRequested);
        view.transport().requested.clear();
        const auto effects = [&] {
            QStringList out;
            for (const QList<QVariant> &call : std::as_const(opened))
                out << u"open "_s + AppWindow::name(call.first().value<AppWindow::Id>());
            if (!quit.isEmpty())
                out << u"quit"_s;
            if (view.transport().requested.contains(u"GET sync/bookings"_s))
                out << u"refresh"_s;
            for (const QString &text : std::as_const(view.clipboard.texts))
                out << u"copy "_s + text;
            for (const QUrl &url : std::as_const(view.opened))
                out << u"join "_s + url.toString();
            return out;
        };
        if (control.isEmpty()) {
            view.window->requestActivate();
            QVERIFY(QTest::qWaitForWindowActive(view.window));
            view.key(Qt::Key_J, Qt::ControlModifier | Qt::ShiftModifier);
        } else {
            QList<QQuickItem *> copy = view.all(u"copyLink"_s);
            copy.removeIf([&](const QQuickItem *item) { return item->property("shortAccessibleName") != control; });
            view.click(copy.isEmpty() ? view.item(control) : copy.first());
        }
        QTRY_VERIFY(!effects().isEmpty());
        QCOMPARE(effects(), QStringList{effect});
        if (effect.startsWith(u"open"_s))
            QVERIFY(!view.window->isVisible()); // the popover makes way
        if (effect.startsWith(u"copy"_s)) {
            QTRY_COMPARE(view.text(u"toast"_s), u"Copied link for Consultation"_s);
            QVERIFY(view.shows(u"toast"_s) && !view.shows(u"popoverBanner"_s));
        }
    }
};

QTEST_MAIN(TestMenuBarPopover)
#include "tst_menubar_popover.moc"
