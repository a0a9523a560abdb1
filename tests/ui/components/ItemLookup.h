#pragma once

#include "IconProvider.h"

#include <QPointF>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QQmlExpression>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

// Reaching into a shown QML window the way a person would see it: items by objectName
// through the visual tree (where repeater delegates live too), clicks in their middle, and
// attached properties read through QML itself.
namespace quorvane::test::ItemLookup {

// An engine with the app's modules and icons that keeps every QML complaint.
struct Engine : QQmlApplicationEngine {
    Engine()
    {
        addImportPath(QStringLiteral("qrc:/qt/qml"));
        addImageProvider(QStringLiteral("icon"), new IconProvider);
        connect(this, &QQmlEngine::warnings, this, [this](const QList<QQmlError> &list) {
            for (const QQmlError &w : list)
                warnings.append(w.toString());
        });
    }
    // The first root object as a window, shown and exposed; null if it didn't load or show.
    [[nodiscard]] QQuickWindow *shownWindow()
    {
        auto *window = rootObjects().isEmpty() ? nullptr : qobject_cast<QQuickWindow *>(rootObjects().constFirst());
        if (window)
            window->show();
        return window && QTest::qWaitForWindowExposed(window) ? window : nullptr;
    }
    QStringList warnings;
};

inline QQuickItem *find(QQuickItem *under, const QString &name)
{
    if (!under || under->objectName() == name)
        return under;
    for (QQuickItem *child : under->childItems()) {
        if (QQuickItem *found = find(child, name))
            return found;
    }
    return nullptr;
}

// On screen: it and every parent visible and not faded out.
inline bool shown(const QQuickItem *item)
{
    for (const QQuickItem *at = item; at; at = at->parentItem()) {
        if (!at->isVisible() || at->opacity() <= 0)
            return false;
    }
    return item != nullptr;
}

inline void click(QQuickWindow *window, const QQuickItem *item, Qt::KeyboardModifiers modifiers = {})
{
    const QPointF centre = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
    QTest::mouseClick(window, Qt::LeftButton, modifiers, centre.toPoint());
}

// A QML expression in the item's scope, such as "Accessible.name" or "ToolTip.text".
inline QVariant eval(QQuickItem *item, const QString &expression)
{
    QQmlExpression e(qmlContext(item), item, expression);
    return e.evaluate();
}

} // namespace quorvane::test::ItemLookup
