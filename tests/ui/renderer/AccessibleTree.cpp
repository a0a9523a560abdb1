#include "AccessibleTree.h"

#include <QAccessible>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QRegularExpression>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace quorvane::test::AccessibleTree {

namespace {

// "SymbolButton_QMLTYPE_12" is a SymbolButton; an object's name says more where it has one.
QString segment(const QAccessibleInterface *node, int index)
{
    const QObject *object = node->object();
    if (!object)
        return u"?"_s;
    if (!object->objectName().isEmpty())
        return object->objectName();
    static const QRegularExpression generated(u"_QML(TYPE)?_\\d+$"_s);
    QString type = QString::fromLatin1(object->metaObject()->className()).remove(generated);
    type.remove(u"QQuick"_s);
    return u"%1[%2]"_s.arg(type).arg(index);
}

void walk(QAccessibleInterface *node, const QString &path, QStringList &found)
{
    const QAccessible::State state = node->state();
    if (state.invisible)
        return;
    // A scroll bar takes no keyboard focus; a screen reader says what it is from its role.
    if (state.focusable && node->role() != QAccessible::ScrollBar) {
        QStringList missing;
        if (node->text(QAccessible::Name).trimmed().isEmpty())
            missing.append(u"no name"_s);
        if (node->role() == QAccessible::Client || node->role() == QAccessible::NoRole)
            missing.append(u"no role"_s);
        if (!missing.isEmpty())
            found.append(u"%1: %2"_s.arg(path, missing.join(u", "_s)));
    }
    for (int i = 0; i < node->childCount(); ++i) {
        if (QAccessibleInterface *child = node->child(i))
            walk(child, path + u'/' + segment(child, i), found);
    }
}

} // namespace

bool readerActive()
{
    // The bridge switches on once it has found the accessibility bus, a moment after start.
    QDeadlineTimer deadline(5000);
    while (!QAccessible::isActive() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    return QAccessible::isActive();
}

QStringList unnamedControls(QWindow *window)
{
    QStringList found;
    if (QAccessibleInterface *root = QAccessible::queryAccessibleInterface(window))
        walk(root, window->objectName(), found);
    return found;
}

} // namespace quorvane::test::AccessibleTree
