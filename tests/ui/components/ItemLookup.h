#pragma once

#include <QPointF>
#include <QQmlContext>
#include <QQmlExpression>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

// Reaching into a shown QML window the way a person would see it: items by objectName
// through the visual tree (where repeater delegates live too), clicks in their middle, and
// attached properties read through QML itself.
namespace quorvane::test::ItemLookup {

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
