#pragma once

#include <QString>

namespace quorvane {

// Texts of the sign-in panel that are worked out rather than written.
namespace SignInText {
// What a screen reader says for the code shown while waiting: "Code" and then each character
// on its own, so that "WXYZ-1234" is spelled out rather than read as a word and a number.
[[nodiscard]] QString spokenCode(const QString &code);
} // namespace SignInText

} // namespace quorvane
