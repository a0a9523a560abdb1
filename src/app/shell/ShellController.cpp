#include "shell/ShellController.h"

#include "shell/ViewTable.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace quorvane {

QQmlComponent *ShellController::sectionView(const QString &section, QObject *user)
{
    const std::optional<AppSection> known = Section::fromId(section);
    return known ? component(user, ViewTable::section(*known)) : nullptr;
}

QQmlComponent *ShellController::window(AppWindow::Id window, QObject *user)
{
    return component(user, ViewTable::window(window));
}

QQmlComponent *ShellController::windowContent(AppWindow::Id window, QObject *user)
{
    return component(user, ViewTable::content(window));
}

QQmlComponent *ShellController::newPollSheet(QObject *user)
{
    return component(user, ViewTable::newPollSheet());
}

QQmlComponent *ShellController::commandPalette(QObject *user)
{
    return component(user, ViewTable::commandPalette());
}

QQmlComponent *ShellController::signInHero(QObject *user)
{
    return component(user, ViewTable::signInHero());
}

QQmlComponent *ShellController::component(QObject *user, const QmlType &type)
{
    QQmlEngine *engine = qmlEngine(user);
    if (type.isNull() || !engine)
        return nullptr;
    QQmlComponent *made = component(*engine, type);
    // QML must not collect what this cache keeps.
    QQmlEngine::setObjectOwnership(made, QQmlEngine::CppOwnership);
    return made;
}

QQmlComponent *ShellController::component(QQmlEngine &engine, const QmlType &type)
{
    // Keyed by engine as well: tests and the renderer make one engine after another, and a
    // component dies with its engine, which empties the pointer kept here.
    const QString key = u"%1/%2.%3"_s.arg(quintptr(&engine)).arg(type.module, type.name);
    QPointer<QQmlComponent> &slot = m_components[key];
    if (!slot) {
        slot = new QQmlComponent(&engine, &engine);
        const QUrl url(u"qrc:/quorvane/views/%1/%2.qml"_s.arg(type.module, type.name));
        slot->setData(type.document(), url);
    }
    return slot;
}

} // namespace quorvane
