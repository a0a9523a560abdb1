// The shared view pieces' logic: booking status pills, hex colours, springs, and the icon
// table with its tinting provider.
#include "AppSection.h"
#include "HexColor.h"
#include "IconProvider.h"
#include "Motion.h"
#include "StatusLabel.h"
#include "Symbols.h"

#include <QFile>
#include <QImage>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quorvane;

Q_DECLARE_METATYPE(quorvane::BookingStatus)
Q_DECLARE_METATYPE(quorvane::Tint)

namespace {
const Instant now = QDateTime(QDate(2026, 3, 10), QTime(13, 40), Qt::UTC);
}

namespace {

// Pixels the icon drew, and whether all of them carry the tint's colour.
struct Ink {
    int pixels = 0;
    bool allTinted = true;
};

Ink inkOf(const QImage &image, const QColor &tint)
{
    Ink ink;
    const QImage plain = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < plain.height(); ++y) {
        for (int x = 0; x < plain.width(); ++x) {
            const QColor c = plain.pixelColor(x, y);
            ink.pixels += c.alpha() > 0;
            // Faint edge pixels lose precision to premultiplication; judge the solid ones.
            const int off = qAbs(c.red() - tint.red()) + qAbs(c.green() - tint.green()) + qAbs(c.blue() - tint.blue());
            ink.allTinted = ink.allTinted && (c.alpha() <= 128 || off <= 9);
        }
    }
    return ink;
}
} // namespace

class TestViewPieces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The pill a booking wears in the lists (skeleton bar widths are checked where they are
    // drawn, in tst_components).
    void statusLabel_data()
    {
        QTest::addColumn<BookingStatus>("status");
        QTest::addColumn<int>("endsIn"); // seconds from now
        QTest::addColumn<bool>("noShow");
        QTest::addColumn<QString>("text"); // empty: no pill
        QTest::addColumn<Tint>("tint");
        using S = BookingStatus;
        QTest::newRow("no-show stands above cancelled") << S::cancelled << -600 << true << u"No-show"_s << Tint::red;
        QTest::newRow("pending, even once over") << S::pending << -600 << false << u"Pending"_s << Tint::orange;
        QTest::newRow("cancelled") << S::cancelled << 3600 << false << u"Cancelled"_s << Tint::secondary;
        QTest::newRow("rejected reads Declined") << S::rejected << 3600 << false << u"Declined"_s << Tint::red;
        QTest::newRow("confirmed and ended") << S::confirmed << -1 << false << u"Done"_s << Tint::secondary;
        QTest::newRow("confirmed, in progress") << S::confirmed << 600 << false << QString() << Tint::secondary;
        QTest::newRow("confirmed, ending this instant") << S::confirmed << 0 << false << QString() << Tint::secondary;
        QTest::newRow("unknown and ended") << S::unknown << -3600 << false << u"Done"_s << Tint::secondary;
    }
    void statusLabel()
    {
        QFETCH(BookingStatus, status);
        QFETCH(int, endsIn);
        QFETCH(bool, noShow);
        QFETCH(QString, text);
        QFETCH(Tint, tint);
        Booking b;
        b.status = status;
        b.end = now.addSecs(endsIn);
        b.start = b.end.addSecs(-1800);
        b.noShow = noShow;
        const std::optional<StatusLabel> label = StatusLabel::of(b, now);
        QCOMPARE(label.has_value(), !text.isEmpty());
        if (label)
            QVERIFY(label->text == text && label->tint == tint);
    }

    void hexColor_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QColor>("expected");
        const QColor accent(0x0A, 0x84, 0xFF);
        QTest::newRow("bare digits") << u"34C759"_s << QColor(0x34, 0xC7, 0x59);
        QTest::newRow("# on both ends, several") << u"##112233###"_s << QColor(0x11, 0x22, 0x33);
        QTest::newRow("empty falls back") << QString() << accent;
        QTest::newRow("not hex falls back") << u"#12G456"_s << accent;
        QTest::newRow("eight digits lose the top byte") << u"#80112233"_s << QColor(0x11, 0x22, 0x33);
        QTest::newRow("three digits are not expanded") << u"#FFF"_s << QColor(0, 15, 255);
        QTest::newRow("seventeen digits overflow") << u"1FFFFFFFFFF112233"_s << accent;
    }
    void hexColor()
    {
        QFETCH(QString, text);
        QFETCH(QColor, expected);
        QCOMPARE(HexColor::parse(text).rgba(), expected.rgba());
    }

    void hexString_data()
    {
        QTest::addColumn<QColor>("color");
        QTest::addColumn<QString>("expected");
        QTest::newRow("round trip") << HexColor::parse(u"#123ABC"_s) << u"#123ABC"_s;
        QTest::newRow("alpha dropped") << QColor(0x11, 0x22, 0x33, 0x40) << u"#112233"_s;
        QTest::newRow("other colour spaces converted") << QColor::fromHsv(0, 255, 255) << u"#FF0000"_s;
        QTest::newRow("invalid colour") << QColor() << u"#0A84FF"_s;
    }
    void hexString()
    {
        QFETCH(QColor, color);
        QTEST(HexColor::string(color), "expected");
    }

    // Every icon the table names, and every name the screens use, is bundled and draws.
    void everySymbolHasItsIcon()
    {
        QStringList names = Symbols::names();
        QVERIFY(names.size() > 50);
        names << u"wifi.slash"_s << u"exclamationmark.triangle.fill"_s << u"checkmark.circle.fill"_s << u"xmark"_s
              << u"link"_s << u"paperplane"_s << u"command"_s << u"arrow.clockwise"_s << u"video.fill"_s
              << u"phone.fill"_s << u"mappin.and.ellipse"_s << u"text.bubble.fill"_s << u"calendar.badge.clock"_s
              << u"macwindow"_s << u"gearshape"_s << u"power"_s << u"cup.and.saucer"_s << u"person.badge.key"_s
              << u"star.fill"_s << u"menubar.rectangle"_s;
        for (const AppSection section : Section::allCases())
            names.append(Section::symbol(section));
        for (const QString &name : std::as_const(names)) {
            const QString path = Symbols::file(name);
            QVERIFY2(!path.isEmpty() && QFile::exists(path), qPrintable(name + u" -> "_s + path));
            QVERIFY2(inkOf(IconProvider::render(name, Qt::black, QSize(24, 24)), Qt::black).pixels > 0,
                     qPrintable(name));
        }
        QVERIFY(QFile::exists(u":/qt/qml/Quorvane/Components/icons/LICENSE"_s));
    }

    // The provider's images: the size asked for, the tint of the query, nothing for an
    // unknown name.
    void providerTints_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QSize>("requested");
        QTest::addColumn<QSize>("expectedSize");
        QTest::addColumn<QColor>("tint");
        QTest::addColumn<bool>("drawn");
        QTest::newRow("hex without #") << u"xmark?color=ff3b30"_s << QSize(32, 32) << QSize(32, 32)
                                       << QColor(0xFF, 0x3B, 0x30) << true;
        QTest::newRow("encoded #") << u"link?color=%2334C759"_s << QSize(24, 24) << QSize(24, 24)
                                   << QColor(0x34, 0xC7, 0x59) << true;
        QTest::newRow("no size is 16") << u"sun.max?color=0000ff"_s << QSize() << QSize(16, 16) << QColor(Qt::blue)
                                       << true;
        QTest::newRow("one side given is square") << u"clock?color=00ff00"_s << QSize(0, 40) << QSize(40, 40)
                                                  << QColor(Qt::green) << true;
        QTest::newRow("unknown name") << u"no.such.symbol?color=ff0000"_s << QSize(20, 20) << QSize(20, 20)
                                      << QColor(Qt::red) << false;
    }
    void providerTints()
    {
        QFETCH(QString, id);
        QFETCH(QColor, tint);
        QFETCH(QSize, expectedSize);
        QFETCH(QSize, requested);
        QFETCH(bool, drawn);
        IconProvider provider;
        QSize size;
        const QImage image = provider.requestImage(id, &size, requested);
        QCOMPARE(size, expectedSize);
        QCOMPARE(image.size(), expectedSize);
        const Ink ink = inkOf(image, tint);
        QVERIFY(drawn ? ink.pixels > 10 && ink.allTinted : ink.pixels == 0);
    }

    void springs_data()
    {
        QTest::addColumn<double>("response");
        QTest::addColumn<double>("damping");
        QTest::newRow("banner, no overshoot") << 0.5 << 1.0;
        QTest::newRow("section switch, quick") << 0.18 << 0.85;
    }
    // A spring with that response rests within about its own period, not at once, not later;
    // the easing curve follows it; damping 1 comes to rest without passing the target, less
    // than 1 passes it once.
    void springs()
    {
        QFETCH(double, response);
        QFETCH(double, damping);
        const int duration = Motion::springDuration(response, damping);
        QVERIFY2(duration > response * 600 && duration < response * 2500, qPrintable(QString::number(duration)));
        for (int ms = duration; ms < duration * 3; ms += 7)
            QVERIFY(qAbs(1 - Motion::springPosition(response, damping, ms / 1000.0)) < 0.005);

        const QEasingCurve curve = Motion::spring(response, damping);
        QCOMPARE(curve.valueForProgress(0), 0.0);
        QCOMPARE(curve.valueForProgress(1), 1.0);
        double highest = 0, previous = 0;
        bool monotonic = true;
        for (int i = 1; i <= 100; ++i) {
            const double value = curve.valueForProgress(i / 100.0);
            const double exact = Motion::springPosition(response, damping, i / 100.0 * duration / 1000.0);
            QVERIFY2(qAbs(value - exact) < 0.01, qPrintable(u"%1 at %2%, spring says %3"_s.arg(value).arg(i).arg(exact)));
            highest = std::max(highest, value);
            monotonic = monotonic && value >= previous - 1e-9;
            previous = value;
        }
        QCOMPARE(monotonic, damping >= 1);
        QCOMPARE(highest > 1.001, damping < 1);
    }

    void springFromNonsense()
    {
        // Bad numbers from a screen fall back to a plain, finite spring instead of NaN motion.
        QCOMPARE(Motion::springDuration(0, 1), Motion::springDuration(0.5, 1));
        QCOMPARE(Motion::springDuration(qQNaN(), -2), Motion::springDuration(0.5, 1));
        QVERIFY(qIsFinite(Motion::spring(qInf(), 0.5).valueForProgress(0.5)));
    }
};

QTEST_MAIN(TestViewPieces)
#include "tst_view_pieces.moc"
