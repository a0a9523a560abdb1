#include "shell/KeyLabel.h"

#include <QStringList>

#include <array>
#include <utility>

using namespace Qt::StringLiterals;

namespace quorvane::KeyLabel {

QString text(const QKeySequence &keys)
{
    if (keys.isEmpty())
        return {};
    const QKeyCombination combination = keys[0];
    // Qt names the logo key "Meta" and puts it first; desktops on Linux call it Super.
    static const std::array<std::pair<Qt::KeyboardModifier, QString>, 4> names{{
        {Qt::ControlModifier, u"Ctrl"_s},
        {Qt::AltModifier, u"Alt"_s},
        {Qt::MetaModifier, u"Super"_s},
        {Qt::ShiftModifier, u"Shift"_s},
    }};
    QStringList parts;
    for (const auto &[modifier, name] : names) {
        if (combination.keyboardModifiers().testFlag(modifier))
            parts.append(name);
    }
    parts.append(QKeySequence(combination.key()).toString(QKeySequence::NativeText));
    return parts.join(u'+');
}

} // namespace quorvane::KeyLabel
