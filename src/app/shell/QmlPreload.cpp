#include "shell/QmlPreload.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QLibraryInfo>
#include <QPluginLoader>
#include <QQmlComponent>
#include <QQmlEngine>

#include <algorithm>
#include <chrono>
#include <memory>
#include <thread>
#include <vector>

using namespace Qt::StringLiterals;

namespace quorvane::QmlPreload {

void start(QQmlEngine &engine, const QList<QUrl> &documents)
{
    for (const QUrl &url : documents) {
        if (!url.isEmpty())
            (new QQmlComponent(&engine, &engine))->loadUrl(url, QQmlComponent::Asynchronous);
    }
}

namespace {
// Does the chores in order while `going` holds, answering the loader thread in between.
template <typename Going>
void runChores(const QList<Chore> &chores, Going going)
{
    for (qsizetype next = 0; next < chores.size() && going();) {
        // The loader thread's requests come to the main thread as posted events of this type.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::User);
        if (chores.at(next)())
            ++next;
        else
            std::this_thread::sleep_for(std::chrono::microseconds(200));
    }
}
} // namespace

void serve(const QList<Chore> &chores)
{
    runChores(chores, [] { return true; });
}

void finish(QQmlEngine &engine, const QList<QUrl> &documents, const QList<Chore> &spare)
{
    if (!spare.isEmpty()) {
        std::vector<std::unique_ptr<QQmlComponent>> pending;
        for (const QUrl &url : documents) {
            if (!url.isEmpty())
                pending.push_back(std::make_unique<QQmlComponent>(&engine, url, QQmlComponent::Asynchronous));
        }
        runChores(spare, [&pending] {
            return std::any_of(pending.cbegin(), pending.cend(), [](const auto &c) { return c->isLoading(); });
        });
    }
    // A synchronous request for a document on its way waits for it, answering the loader
    // thread meanwhile; one that is ready returns at once.
    for (const QUrl &url : documents) {
        if (!url.isEmpty())
            QQmlComponent(&engine, url, QQmlComponent::PreferSynchronous);
    }
}

std::unique_ptr<QObject> create(QQmlEngine &engine, const QUrl &document)
{
    QQmlComponent component(&engine, document, QQmlComponent::PreferSynchronous);
    std::unique_ptr<QObject> made(component.isReady() ? component.create() : nullptr);
    if (!made) {
        const QList<QQmlError> errors = component.errors();
        if (engine.outputWarningsToStandardError()) {
            for (const QQmlError &error : std::as_const(errors))
                qWarning().noquote() << error.toString();
        }
        if (!errors.isEmpty())
            Q_EMIT engine.warnings(errors);
    }
    return made;
}

void loadPlugins(const QStringList &modules)
{
    const QDir imports(QLibraryInfo::path(QLibraryInfo::QmlImportsPath));
    for (const QString &module : modules) {
        const QDir directory(imports.filePath(QString(module).replace(u'.', u'/')));
        QFile qmldir(directory.filePath(u"qmldir"_s));
        if (!qmldir.open(QIODevice::ReadOnly | QIODevice::Text))
            continue;
        // "plugin <name>" or "optional plugin <name>"
        while (!qmldir.atEnd()) {
            const QList<QByteArray> words = qmldir.readLine().simplified().split(' ');
            const qsizetype at = words.indexOf("plugin");
            if (at < 0 || at + 1 >= words.size())
                continue;
            // Loaded and kept: only the loader's own use makes the plugin's object.
            QPluginLoader(directory.filePath(u"lib%1.so"_s.arg(QString::fromUtf8(words.at(at + 1))))).load();
            break;
        }
    }
}

QUrl fileOf(const QmlType &type)
{
    if (type.isNull())
        return {};
    return QUrl(u"qrc:/qt/qml/%1/%2.qml"_s.arg(QString(type.module).replace(u'.', u'/'), type.name));
}

} // namespace quorvane::QmlPreload
