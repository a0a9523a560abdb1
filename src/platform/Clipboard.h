#pragma once

#include <QString>

namespace quorvane {

// Where copied text goes.
class Clipboard
{
public:
    virtual ~Clipboard() = default;
    virtual void setText(const QString &text) = 0;
};

} // namespace quorvane
