#pragma once

#include "components/IconProvider.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

namespace quorvane::test {

// A QML window in an engine of its own with the app's modules and icons, keeping every QML
// complaint. Items are found by objectName in the visual tree, where delegates live too.
struct View {
    explicit View(const QByteArray &qml = {}, const QUrl &url = {})
    {
        engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
        engine.addImageProvider(QStringLiteral("icon"), new IconProvider);
        QObject::connect(&engine, &QQmlEngine::warnings, &engine, [this](const QList<QQmlError> &list) {
            for (const QQmlError &w : list)
                warnings.append(w.toString());
        });
        if (!qml.isEmpty())
            engine.loadData(qml, QUrl(QStringLiteral("file:///test/Host.qml")));
        else if (!url.isEmpty())
            engine.load(url);
    }
    // The first root object as a window, shown and exposed.
    [[nodiscard]] bool ready()
    {
        if (!window && !engine.rootObjects().isEmpty())
            window = qobject_cast<QQuickWindow *>(engine.rootObjects().constFirst());
        if (window)
            window->show();
        return window && QTest::qWaitForWindowExposed(window);
    }
    [[nodiscard]] QList<QQuickItem *> all(const QString &name, QQuickItem *under = nullptr) const
    {
        under = under ? under : window->contentItem();
        QList<QQuickItem *> out;
        if (under->objectName() == name)
            out.append(under);
        for (QQuickItem *child : under->childItems())
            out += all(name, child);
        return out;
    }
    [[nodiscard]] QQuickItem *item(const QString &name) const { return all(name).value(0); }
    [[nodiscard]] QString text(const QString &name) const
    {
        return item(name) ? item(name)->property("text").toString() : QString();
    }
    // On screen: it and every parent visible and not faded out.
    [[nodiscard]] bool shows(const QString &name) const
    {
        const QQuickItem *at = item(name);
        for (; at && at->isVisible() && at->opacity() > 0; at = at->parentItem()) {}
        return item(name) && !at;
    }
    void click(const QQuickItem *item, Qt::KeyboardModifiers modifiers = {}) const
    {
        QVERIFY(item);
        const QPointF centre = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
        QTest::mouseClick(window, Qt::LeftButton, modifiers, centre.toPoint());
    }
    void click(const QString &name, Qt::KeyboardModifiers modifiers = {}) const { click(item(name), modifiers); }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const { QTest::keyClick(window, key, modifiers); }
    QStringList warnings;
    QQmlApplicationEngine engine;
    QQuickWindow *window = nullptr;
};

#define QVERIFY_READY(view) QVERIFY2((view).ready(), qPrintable((view).warnings.join(u'\n')))

} // namespace quorvane::test
