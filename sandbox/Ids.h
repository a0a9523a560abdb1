#pragma once

#include <QRandomGenerator>
#include <QString>

// Identifiers and codes drawn from the sandbox's own generator, so a seeded run repeats itself.
namespace quorvane::sandbox::Ids {

// A version-4 UUID in its canonical upper-case text form.
[[nodiscard]] QString uuid(QRandomGenerator &rng);

// `bytes` random bytes as lower-case hex.
[[nodiscard]] QString hex(QRandomGenerator &rng, int bytes);

// "WXYZ-1234": easy to read aloud, without the letters people confuse (I, O).
[[nodiscard]] QString userCode(QRandomGenerator &rng);

// "https://meet.google.com/abc-defg-hij".
[[nodiscard]] QString meetLink(QRandomGenerator &rng);

} // namespace quorvane::sandbox::Ids
