// Light or dark as the desktop prefers: a fake desktop portal on a private bus says which at
// start and switches it while windows are open; the palette, Style's colours and the windows
// (open ones and new ones) follow. Without a portal the platform's palette stays.
#include "components/Appearance.h"
#include "components/SchemePalette.h"
#include "components/Tint.h"
#include "support/FakeSettingsPortal.h"
#include "support/PrivateBus.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>

#include <cmath>
#include <memory>
#include <tuple>

#include "QuorvaneQmlModules.h"

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::test;

namespace {

const QByteArray styleProbe = "import QtQuick\nimport Quorvane.Components\n"
                              "QtObject { readonly property bool dark: Style.dark; "
                              "readonly property color accent: Style.accent }";
const QByteArray window = "import QtQuick\nimport QtQuick.Controls\n"
                          "ApplicationWindow { visible: true; width: 200; height: 100; "
                          "readonly property color ground: palette.window; "
                          "readonly property color ink: label.color; Label { id: label; text: \"Today\" } }";

double luminance(const QColor &c)
{
    auto channel = [](double v) { return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
    return 0.2126 * channel(c.redF()) + 0.7152 * channel(c.greenF()) + 0.0722 * channel(c.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const double la = luminance(a);
    const double lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

// Replies come in order on one connection: once this one is back, the app has its answer too.
void roundTrip(const QDBusConnection &app)
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(u"org.freedesktop.portal.Desktop"_s, u"/org/freedesktop/portal/desktop"_s,
                                       u"org.freedesktop.portal.Settings"_s, u"Read"_s);
    call << u"org.freedesktop.appearance"_s << u"color-scheme"_s;
    QDBusPendingCallWatcher watcher(app.asyncCall(call));
    QSignalSpy done(&watcher, &QDBusPendingCallWatcher::finished);
    QVERIFY(done.wait());
}

} // namespace

class TestAppearance : public QObject
{
    Q_OBJECT

    QPalette m_platform;
    QQmlEngine *m_engine = nullptr;

    std::unique_ptr<QObject> make(const QByteArray &qml)
    {
        QQmlComponent component(m_engine);
        component.setData(qml, QUrl());
        std::unique_ptr<QObject> object(component.create());
        if (!object)
            qWarning() << component.errors();
        return object;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QQuickStyle::setStyle(u"Fusion"_s);
        m_platform = QGuiApplication::palette();
        QVERIFY(!SchemePalette::isDark(m_platform));
        m_engine = new QQmlEngine(this);
        m_engine->addImportPath(u"qrc:/qt/qml"_s);
    }

    void cleanup() { QGuiApplication::setPalette(m_platform); }

    // -1: the portal doesn't know the setting; -2: there is no portal.
    void start_data()
    {
        QTest::addColumn<int>("setting");
        QTest::addColumn<bool>("dark");
        QTest::newRow("prefers dark") << 1 << true;
        QTest::newRow("prefers light") << 2 << false;
        QTest::newRow("no preference") << 0 << false;
        QTest::newRow("setting unknown") << -1 << false;
        QTest::newRow("no portal") << -2 << false;
    }

    void start()
    {
        QFETCH(int, setting);
        QFETCH(bool, dark);
        PrivateBus bus;
        QVERIFY2(bus.isRunning(), qPrintable(bus.error()));
        std::unique_ptr<FakeSettingsPortal> portal;
        if (setting > -2) {
            portal = std::make_unique<FakeSettingsPortal>(bus.connect(u"portal"_s),
                                                          setting >= 0 ? std::optional<uint>(setting) : std::nullopt);
            QVERIFY(portal->start());
        }
        const std::unique_ptr<QObject> style = make(styleProbe);
        QVERIFY(style);
        const QDBusConnection app = bus.connect(u"app"_s);
        Appearance appearance;
        appearance.follow(app);
        if (portal)
            roundTrip(app);
        QCOMPARE(SchemePalette::applicationIsDark(), dark);
        QCOMPARE(style->property("dark").toBool(), dark);
        QCOMPARE(style->property("accent").value<QColor>(), Tints::color(Tint::accent, dark));
        if (!dark)
            QCOMPARE(QGuiApplication::palette(), m_platform);
    }

    void switchesLive()
    {
        PrivateBus bus;
        FakeSettingsPortal portal(bus.connect(u"portal"_s), 0u);
        QVERIFY(portal.start());
        Appearance appearance;
        appearance.follow(bus.connect(u"app"_s));
        const std::unique_ptr<QObject> style = make(styleProbe);
        const std::unique_ptr<QObject> open = make(window);
        QVERIFY(style && open);
        const QColor lightInk = open->property("ink").value<QColor>();

        portal.setColorScheme(1);
        QTRY_VERIFY(style->property("dark").toBool());
        QCOMPARE(style->property("accent").value<QColor>(), Tints::color(Tint::accent, true));
        const QPalette dark = SchemePalette::dark();
        // The open window and one made afterwards both draw dark.
        const std::unique_ptr<QObject> later = make(window);
        QVERIFY(later);
        for (QObject *w : {open.get(), later.get()}) {
            QTRY_COMPARE(w->property("ground").value<QColor>(), dark.color(QPalette::Window));
            QTRY_COMPARE(w->property("ink").value<QColor>(), dark.color(QPalette::WindowText));
        }

        portal.setColorScheme(2);
        QTRY_VERIFY(!style->property("dark").toBool());
        QCOMPARE(QGuiApplication::palette(), m_platform);
        QCOMPARE(open->property("ink").value<QColor>(), lightInk);
    }

    // Ours only where the platform's palette isn't already what the desktop asks for.
    void choosesPalette_data()
    {
        QTest::addColumn<ColorScheme>("preference");
        QTest::addColumn<bool>("platformDark");
        QTest::addColumn<bool>("dark");
        QTest::addColumn<bool>("platformKept");
        QTest::newRow("dark on a light platform") << ColorScheme::dark << false << true << false;
        QTest::newRow("dark on a dark platform") << ColorScheme::dark << true << true << true;
        QTest::newRow("light on a dark platform") << ColorScheme::light << true << false << false;
        QTest::newRow("light on a light platform") << ColorScheme::light << false << false << true;
        QTest::newRow("none on a dark platform") << ColorScheme::noPreference << true << true << true;
    }

    void choosesPalette()
    {
        QFETCH(ColorScheme, preference);
        QFETCH(bool, platformDark);
        QFETCH(bool, dark);
        QFETCH(bool, platformKept);
        QPalette platform = SchemePalette::light();
        if (platformDark) {
            platform.setColor(QPalette::Window, QColor(0x30, 0x30, 0x30));
            platform.setColor(QPalette::WindowText, Qt::white);
        }
        const QPalette chosen = SchemePalette::choose(preference, platform);
        QCOMPARE(SchemePalette::isDark(chosen), dark);
        QCOMPARE(chosen == platform, platformKept);
    }

    // Text and symbols in the dark appearance read on what they are drawn on.
    void darkReads()
    {
        const QPalette p = SchemePalette::dark();
        using R = QPalette::ColorRole;
        const QList<std::tuple<R, R, double>> pairs = {
            {R::WindowText, R::Window, 7},           {R::Text, R::Base, 7},
            {R::ButtonText, R::Button, 7},           {R::PlaceholderText, R::Base, 4.5},
            {R::HighlightedText, R::Highlight, 4.5}, {R::Link, R::Base, 4.5},
            {R::ToolTipText, R::ToolTipBase, 7},
        };
        for (const auto &[ink, ground, least] : pairs)
            QVERIFY2(contrast(p.color(ink), p.color(ground)) >= least, qPrintable(QString::number(int(ink))));
        // Tints mark symbols, dots and short labels; the secondary grey is running text.
        for (Tint tint : {Tint::accent, Tint::red, Tint::orange, Tint::green, Tint::blue, Tint::purple})
            QVERIFY2(contrast(Tints::color(tint, true), p.color(R::Window)) >= 3, qPrintable(Tints::hex(tint)));
        QVERIFY(contrast(Tints::color(Tint::secondary, true), p.color(R::Window)) >= 4.5);
    }
};

QTEST_MAIN(TestAppearance)
#include "tst_appearance.moc"
