// Shorthand for the tables that describe windows: a control's name is written once.
#pragma once

// clang-format off
#define CONTROL(member) #member, -1, [](Form& form) -> Control& { return form.member; }
#define ELEMENT(array, place) #array, place, [](Form& form) -> Control& { return form.array[place]; }
// clang-format on
