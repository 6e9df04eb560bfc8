#pragma once

#include <QValidator>

#include "platform/desktop/drawing/text.h"

namespace platform::desktop {

/// Refuses characters that the program's code page does not have, as they are typed.
class Code_Page_Validator final : public QValidator {
  public:
    using QValidator::QValidator;

    State validate(QString& text, int&) const override {
        return From_Qt(text).has_value() ? Acceptable : Invalid;
    }
};

}  // namespace platform::desktop
