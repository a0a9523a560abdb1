#include "shell/QmlPreload.h"

#include <QQmlComponent>
#include <QQmlEngine>

using namespace Qt::StringLiterals;

namespace quorvane::QmlPreload {

void start(QQmlEngine &engine, const QList<QUrl> &documents)
{
    for (const QUrl &url : documents) {
        if (!url.isEmpty())
            (new QQmlComponent(&engine, &engine))->loadUrl(url, QQmlComponent::Asynchronous);
    }
}

void finish(QQmlEngine &engine, const QList<QUrl> &documents)
{
    // A synchronous request for a document on its way waits for it, answering the loader
    // thread meanwhile; one that is ready returns at once.
    for (const QUrl &url : documents) {
        if (!url.isEmpty())
            QQmlComponent(&engine, url, QQmlComponent::PreferSynchronous);
    }
}

QUrl fileOf(const QmlType &type)
{
    if (type.isNull())
        return {};
    return QUrl(u"qrc:/qt/qml/%1/%2.qml"_s.arg(QString(type.module).replace(u'.', u'/'), type.name));
}

} // namespace quorvane::QmlPreload
