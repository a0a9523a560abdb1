#pragma once

#include "Scene.h"

#include <QList>

namespace quorvane::test {

// Every scene of the renderer. A source file adds its own with
//
//     QUORVANE_SCENES(today) { return {Scene{...}, Scene{...}}; }
//
// and joins the renderer through quorvane_add_scenes() in CMake; nothing else to edit.
namespace SceneTable {
using Maker = QList<Scene> (*)();
bool add(const char *group, Maker maker);
// All scenes, by group name and then in each group's order.
[[nodiscard]] QList<Scene> all();
} // namespace SceneTable

} // namespace quorvane::test

#define QUORVANE_SCENES(group)                                                                                         \
    static QList<quorvane::test::Scene> quorvaneScenes_##group();                                                      \
    [[maybe_unused]] static const bool quorvaneScenesAdded_##group =                                                   \
        quorvane::test::SceneTable::add(#group, &quorvaneScenes_##group);                                              \
    static QList<quorvane::test::Scene> quorvaneScenes_##group()
