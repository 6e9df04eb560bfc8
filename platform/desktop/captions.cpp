#include "platform/desktop/captions.h"

#include <QAbstractButton>
#include <QFontMetrics>
#include <QGroupBox>
#include <QLabel>
#include <QStyle>

#include "platform/desktop/drawing/text.h"
#include "platform/desktop/live_control.h"

namespace platform::desktop {

namespace {

/// A label breaks its caption into lines where it is high enough for two.
void Show_In_Label(QLabel& label, const QString& caption) {
    const bool has_lines = label.height() >= 2 * QFontMetrics(label.font()).lineSpacing();
    label.setWordWrap(has_lines);
    if (!has_lines) Condense_To_Fit(label, caption, label.width());
    label.setText(caption);
}

/// What a button needs beside its caption.
int Space_Beside(const QAbstractButton& button, Control_Kind kind) {
    const QStyle& style = *button.style();
    switch (kind) {
        case Control_Kind::Check:
            return style.pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &button) +
                   style.pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, &button);
        case Control_Kind::Option:
            return style.pixelMetric(QStyle::PM_ExclusiveIndicatorWidth, nullptr, &button) +
                   style.pixelMetric(QStyle::PM_RadioButtonLabelSpacing, nullptr, &button);
        default:
            return 2 * style.pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, &button);
    }
}

}  // namespace

void Show_Caption(Live_Control& control, std::string_view caption) {
    const Control_Kind kind = control.row->kind;
    if (control.action != nullptr) {
        control.action->setText(Caption_To_Qt(caption));
    } else if (auto* label = qobject_cast<QLabel*>(control.widget)) {
        Show_In_Label(*label, To_Qt(caption));
    } else if (auto* frame = qobject_cast<QGroupBox*>(control.widget)) {
        frame->setTitle(Caption_To_Qt(caption));
    } else if (auto* button = qobject_cast<QAbstractButton*>(control.widget)) {
        const QString text = To_Qt(caption);
        Condense_To_Fit(*button, text, button->width() - Space_Beside(*button, kind));
        button->setText(Caption_To_Qt(caption));
    }
}

}  // namespace platform::desktop
