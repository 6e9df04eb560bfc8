#include "platform/desktop/focus_keys.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include "platform/desktop/keys.h"

namespace platform::desktop {

namespace {

struct Toolkit_Key {
    int key;
    std::uint32_t keysym;
};

/// Where the toolkit has no keysyms of the window system.
constexpr Toolkit_Key toolkit_keys[] = {
    {Qt::Key_Escape, 0xff1b},    {Qt::Key_Tab, 0xff09},     {Qt::Key_Backtab, 0xff09},
    {Qt::Key_Backspace, 0xff08}, {Qt::Key_Return, 0xff0d},  {Qt::Key_Enter, 0xff8d},
    {Qt::Key_Insert, 0xff63},    {Qt::Key_Delete, 0xffff},  {Qt::Key_Pause, 0xff13},
    {Qt::Key_Print, 0xff61},     {Qt::Key_Clear, 0xff0b},   {Qt::Key_Home, 0xff50},
    {Qt::Key_End, 0xff57},       {Qt::Key_Left, 0xff51},    {Qt::Key_Up, 0xff52},
    {Qt::Key_Right, 0xff53},     {Qt::Key_Down, 0xff54},    {Qt::Key_PageUp, 0xff55},
    {Qt::Key_PageDown, 0xff56},  {Qt::Key_Shift, 0xffe1},   {Qt::Key_Control, 0xffe3},
    {Qt::Key_Meta, 0xffeb},      {Qt::Key_Alt, 0xffe9},     {Qt::Key_AltGr, 0xfe03},
    {Qt::Key_CapsLock, 0xffe5},  {Qt::Key_NumLock, 0xff7f}, {Qt::Key_ScrollLock, 0xff14},
    {Qt::Key_Menu, 0xff67},      {Qt::Key_Help, 0xff6a},    {Qt::Key_Select, 0xff60},
    {Qt::Key_Execute, 0xff62},   {Qt::Key_Cancel, 0xff69},
};

std::uint32_t Keysym_Of(const QKeyEvent& event) {
    if (event.nativeVirtualKey() != 0) return event.nativeVirtualKey();
    const int key = event.key();
    // What has a character is named by it in both, with an offset on the numeric keypad.
    if (key > 0 && key < 0x7f) {
        const bool on_keypad = event.modifiers().testFlag(Qt::KeypadModifier);
        return static_cast<std::uint32_t>(key) + (on_keypad ? 0xff80U : 0U);
    }
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24) {
        return 0xffbeU + static_cast<std::uint32_t>(key - Qt::Key_F1);
    }
    for (const Toolkit_Key& row : toolkit_keys) {
        if (row.key == key) return row.keysym;
    }
    return 0;
}

/// The key's keysym is that of the level in use. A digit has to be known with and without Shift, so
/// that the row of digits goes by its place; 10 to 19 is that of 1 to 0 on Linux.
Key_Codes Codes_Of_Event(const QKeyEvent& event) {
    const std::uint32_t keysym = Keysym_Of(event);
    const std::uint32_t place = event.nativeScanCode();
    if (place < 10 || place > 19) {
        const Key_Codes codes = Codes_Of({&keysym, 1});
        return codes == Key_Codes() ? Codes_Of_Place(place) : codes;
    }
    const std::uint32_t digit = '0' + (place - 9) % 10;
    const std::uint32_t keysyms[] = {keysym, digit};
    return Codes_Of(keysyms);
}

Key_Id Id_Of(const QKeyEvent& event) {
    const Key_Id place = event.nativeScanCode();
    return place != 0 ? place : static_cast<Key_Id>(event.key());
}

/// Looks at the events on their way to the windows and lets them all pass. One key comes by several
/// times, at the window, its widget and the widget's parents; only the first changes anything.
class Focus_Keys final : public QObject {
  public:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) {
            const auto& key = *static_cast<const QKeyEvent*>(event);
            if (!key.isAutoRepeat()) Take(key);
        } else if (event->type() == QEvent::ApplicationStateChange) {
            const auto& change = *static_cast<const QApplicationStateChangeEvent*>(event);
            if (change.applicationState() != Qt::ApplicationActive) Release_All_Keys();
        }
        return false;
    }

  private:
    void Take(const QKeyEvent& event) {
        const Key_Id key = Id_Of(event);
        if (event.type() == QEvent::KeyRelease) {
            Release_Key(key);
            released = key;
            release_time = event.timestamp();
        } else if (key == released && event.timestamp() == release_time && release_time != 0) {
            // An X server repeats a key by a release and a press in one moment, and the toolkit
            // does not know that for a repetition if the two come in different reads.
            Find_Key_Down(key, Codes_Of_Event(event));
        } else {
            Press_Key(key, Codes_Of_Event(event));
        }
    }

    Key_Id released = 0;
    quint64 release_time = 0;  ///< in milliseconds, of the window system; 0 where it tells none
};

}  // namespace

QObject* Watch_Focus_Keys() {
    auto* keys = new Focus_Keys;
    QCoreApplication::instance()->installEventFilter(keys);
    return keys;
}

}  // namespace platform::desktop
