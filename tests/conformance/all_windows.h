#pragma once

#include "app/form1.h"
#include "app/form2.h"
#include "app/form5.h"
#include "app/form6.h"
#include "chart/form4.h"
#include "keys/form7.h"
#include "keys/form8.h"
#include "selection/form3.h"

namespace skerrand {

/// The program's windows by their numbers, from 1 on.
inline constexpr const platform::Window* all_windows[] = {
    &form1::window, &form2::window, &form3::window, &form4::window,
    &form5::window, &form6::window, &form7::window, &form8::window};

}  // namespace skerrand
