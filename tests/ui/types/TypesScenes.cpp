// The event types screen: an inactive type selected, the editor on each kind of location,
// a full list of questions, a bar without any time in it, nothing selected, and a row's menu.
#include "SceneTable.h"
#include "Stage.h"

#include <QCoreApplication>
#include <QCoroTask>
#include <QKeyEvent>
#include <QQuickItem>

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::test;

namespace {

// The server's type `id` changed, the model has refreshed, and the screen shows the type in
// an editor made after that.
Scene typeScene(const QString &name, const QString &id, const std::function<void(EventType &)> &edit = {},
                std::function<void(Stage &)> after = {})
{
    return sectionScene(name, AppSection::types, [id, edit, after](Stage &stage) {
        if (edit) {
            for (EventType &t : stage.app().transport().data.settings->eventTypes) {
                if (t.id == id)
                    edit(t);
            }
            QCoro::waitFor(stage.app().model().refresh());
        }
        stage.set(u"typesModel"_s, "selection", QString());
        stage.set(u"typesModel"_s, "selection", id);
        if (after) {
            Stage::wait(100);
            after(stage);
        }
    });
}

// The editor scrolled to its end, where the location and the questions are.
void scrollToEnd(Stage &stage)
{
    auto *editor = qobject_cast<QQuickItem *>(stage.find(u"typeEditor"_s));
    auto *flickable = editor ? editor->property("contentItem").value<QQuickItem *>() : nullptr;
    if (!flickable)
        return stage.problem(u"no editor"_s);
    const qreal end = flickable->property("contentHeight").toReal() - flickable->height();
    flickable->setProperty("contentY", std::max<qreal>(0, end));
}

} // namespace

QUORVANE_SCENES(types)
{
    // Office Hours is off, in person at the studio.
    Scene inactive = typeScene(u"types-inactive-selected"_s, u"et-office-hours"_s);
    Scene meet = typeScene(u"types-location-meet"_s, u"et-consult"_s, {}, scrollToEnd);
    Scene phone = typeScene(
        u"types-location-phone"_s, u"et-intro"_s, [](EventType &t) { t.location = MeetingLocation::phone; },
        scrollToEnd);
    Scene inPerson = typeScene(u"types-location-in-person"_s, u"et-office-hours"_s, {}, scrollToEnd);
    Scene custom = typeScene(
        u"types-location-custom"_s, u"et-deep-dive"_s,
        [](EventType &t) {
            t.location = MeetingLocation::custom;
            t.locationDetail = u"https://zoom.example/j/4471"_s;
        },
        scrollToEnd);
    Scene questions = typeScene(
        u"types-five-questions"_s, u"et-deep-dive"_s,
        [](EventType &t) {
            t.questions = {u"What should we cover?"_s, u"Your phone number"_s, u"Company"_s, u"Team size"_s,
                           u"Anything to read first?"_s};
        },
        [](Stage &stage) {
            scrollToEnd(stage);
            stage.set(u"editorModel"_s, "newQuestion", u"Budget"_s);
        });
    // No minutes and no buffers: the meeting's segment is 4 wide, alone.
    Scene zero = typeScene(u"types-zero-buffer-preview"_s, u"et-consult"_s, [](EventType &t) {
        t.minutes = 0;
        t.bufferBefore = 0;
        t.bufferAfter = 0;
    });
    // A refresh took the selected type away.
    Scene none = sectionScene(u"types-nothing-selected"_s, AppSection::types,
                              [](Stage &stage) { stage.set(u"typesModel"_s, "selection", u"et-gone"_s); });
    // The menu key on the selected row, as a keyboard user opens it.
    Scene menu = sectionScene(u"types-context-menu"_s, AppSection::types, [](Stage &stage) {
        stage.set(u"typesModel"_s, "selection", u"et-consult"_s);
        QObject *list = stage.find(u"typeList"_s);
        if (!list)
            return stage.problem(u"no list"_s);
        QMetaObject::invokeMethod(list, "forceActiveFocus");
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Menu, Qt::NoModifier);
        QCoreApplication::sendEvent(stage.window(), &press);
    });
    return {inactive, meet, phone, inPerson, custom, questions, zero, none, menu};
}
