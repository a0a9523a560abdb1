#include "shell/QmlPreload.h"

#include <QFile>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <future>

using namespace Qt::StringLiterals;
using namespace quorvane;

namespace {
bool mapped(const QByteArray &library)
{
    QFile maps(u"/proc/self/maps"_s);
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(library);
}
} // namespace

class TestQmlPreload : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Plugins loaded on a side thread are the ones the engine then uses: its types work, made
    // on the main thread, and a module that doesn't exist is passed over.
    void pluginsLoadedAside()
    {
        QVERIFY(!mapped("libqquicklayoutsplugin.so"));
        std::async(std::launch::async, [] {
            QmlPreload::loadPlugins({u"No.Such.Module"_s, u"QtQuick.Layouts"_s});
        }).wait();
        QVERIFY(mapped("libqquicklayoutsplugin.so"));

        QQmlEngine engine;
        QQmlComponent component(&engine);
        component.setData("import QtQuick\nimport QtQuick.Layouts\nRowLayout { Item { Layout.fillWidth: true } }",
                          QUrl(u"file:///preload.qml"_s));
        const std::unique_ptr<QObject> made(component.create());
        QVERIFY2(made, qPrintable(component.errorString()));
        QCOMPARE(made->thread(), QThread::currentThread());
    }

    // Spare work fills the wait for a document and stops when the document is ready; with the
    // document ready already, there is no wait to fill.
    void spareWorkOnlyWhileWaiting()
    {
        QTemporaryDir folder;
        QFile file(folder.filePath(u"Window.qml"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(
            "import QtQuick\nimport QtQuick.Controls\nimport QtQuick.Layouts\nPane { ColumnLayout { Button {} } }\n");
        file.close();
        const QUrl url = QUrl::fromLocalFile(file.fileName());

        QQmlEngine engine;
        int done = 0;
        const QList<QmlPreload::Chore> spare(10'000, [&done] {
            QThread::msleep(1);
            ++done;
            return true;
        });
        QmlPreload::start(engine, {url});
        QmlPreload::finish(engine, {url}, spare);
        QVERIFY(done > 0);
        QVERIFY(done < spare.size());
        QQmlComponent ready(&engine, url, QQmlComponent::Asynchronous);
        QVERIFY2(ready.isReady(), qPrintable(ready.errorString()));

        done = 0;
        QmlPreload::finish(engine, {url}, spare);
        QCOMPARE(done, 0);
    }
};

QTEST_MAIN(TestQmlPreload)
#include "tst_qml_preload.moc"
