// The shared QML pieces in a window of their own: the loading skeleton and the banner's
// tinted icons.
#include "ui/components/ItemLookup.h"

#include <QQuickStyle>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(Quorvane_AppPlugin)
Q_IMPORT_QML_PLUGIN(Quorvane_ComponentsPlugin)

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::test;

namespace {

// A window holding `body`, loaded in a fresh engine with the icons.
struct Host {
    explicit Host(const QByteArray &body)
    {
        engine.loadData("import QtQuick\nimport QtQuick.Controls\nimport Quorvane.App\nimport Quorvane.Components\n"
                        "ApplicationWindow { width: 640; height: 240; visible: true\n" + body + "\n}\n",
                        QUrl(u"file:///components-test/Host.qml"_s));
        window = engine.shownWindow();
    }
    [[nodiscard]] QQuickItem *item(const QString &name) const { return ItemLookup::find(window->contentItem(), name); }
    ItemLookup::Engine engine;
    QQuickWindow *window = nullptr;
};

#define READY(host) QVERIFY2((host).window, qPrintable((host).engine.warnings.join(u'\n')))

} // namespace

class TestComponents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QQuickStyle::setStyle(u"Fusion"_s); }

    void skeletonRows_data()
    {
        QTest::addColumn<int>("rows");
        QTest::newRow("none") << 0;
        QTest::newRow("default five") << 5;
    }
    // Bars at the fixed widths, one row each; read out as one "Loading" even when empty.
    void skeletonRows()
    {
        QFETCH(int, rows);
        Host host("SkeletonList { objectName: 'skeleton'; width: 400; rows: " + QByteArray::number(rows) + " }");
        READY(host);
        QQuickItem *skeleton = host.item(u"skeleton"_s);
        QCOMPARE(ItemLookup::eval(skeleton, u"Accessible.name"_s).toString(), u"Loading"_s);
        QQuickItem *column = skeleton->childItems().first();
        QList<QQuickItem *> bars;
        for (QQuickItem *child : column->childItems()) {
            if (child->childItems().size() == 2)
                bars.append(child);
        }
        QCOMPARE(bars.size(), rows);
        if (rows > 3) {
            QCOMPARE(bars[3]->childItems()[0]->width(), 161.0);
            QCOMPARE(bars[3]->childItems()[1]->width(), 109.0);
            QCOMPARE(bars[1]->y() - bars[0]->y(), 12.0 + 14.0);
        }
        QCOMPARE(skeleton->property("animating").toBool(), rows > 0);
    }

    // The shimmer runs only while someone can see it.
    void shimmerStopsWhenHidden()
    {
        Host host("SkeletonList { objectName: 'skeleton'; width: 400 }");
        READY(host);
        QQuickItem *skeleton = host.item(u"skeleton"_s);
        QVERIFY(skeleton->property("animating").toBool());
        const double phase = skeleton->property("phase").toDouble();
        QTRY_VERIFY(skeleton->property("phase").toDouble() != phase);

        host.window->hide();
        QTRY_VERIFY(!skeleton->property("animating").toBool());
        const double stopped = skeleton->property("phase").toDouble();
        QTest::qWait(100);
        QCOMPARE(skeleton->property("phase").toDouble(), stopped);

        host.window->show();
        QTRY_VERIFY(skeleton->property("animating").toBool());
        skeleton->setVisible(false);
        QTRY_VERIFY(!skeleton->property("animating").toBool());
    }

    // Each kind of banner draws its icon in its own tint, through the icon provider.
    void bannerKinds_data()
    {
        QTest::addColumn<QByteArray>("kind");
        QTest::addColumn<QColor>("tint");
        QTest::newRow("error") << QByteArray("AppModel.Error") << QColor(0xFF, 0x95, 0x00);
        QTest::newRow("offline") << QByteArray("AppModel.Offline") << QColor(0x8E, 0x8E, 0x93);
        QTest::newRow("info") << QByteArray("AppModel.Info") << QColor(0x34, 0xC7, 0x59);
    }
    void bannerKinds()
    {
        QFETCH(QByteArray, kind);
        QFETCH(QColor, tint);
        Host host("BannerView { objectName: 'banner'; width: 600; message: 'x'; kind: " + kind + " }");
        READY(host);
        QQuickItem *icon = host.item(u"bannerIcon"_s);
        QCOMPARE(icon->property("color").value<QColor>(), tint);
        QTRY_COMPARE(icon->property("status").toInt(), 1); // Image.Ready: the provider drew it
        const QImage drawn = host.window->grabWindow();
        const QPoint centre = icon->mapToScene(QPointF(icon->width() / 2, icon->height() / 2)).toPoint();
        bool tinted = false;
        for (int i = 0; i < 13 * 13 && !tinted; ++i) {
            const QColor c = drawn.pixelColor(centre + QPoint(i % 13 - 6, i / 13 - 6));
            tinted = qAbs(c.red() - tint.red()) + qAbs(c.green() - tint.green()) + qAbs(c.blue() - tint.blue()) < 60;
        }
        QVERIFY2(tinted, "no pixel of the icon in its tint");
    }
};

QTEST_MAIN(TestComponents)
#include "tst_components.moc"
