#pragma once

#include <vector>

#include "desk/script/script_step.h"
#include "host/input.h"

/// The messages that a window sends while a person does a step; the pixels stay 0,0.
///
/// A click is the way there, a press and a release; the second press of a double click comes as one message
/// of its own. A key comes as the presses of its modifiers, its own press, its character if it has one, and
/// the releases; a unit outside the layout (an accented letter, half a surrogate pair) as a composed key.
std::vector<HostWindowMessage> messagesOf(const MouseStep& step);
std::vector<HostWindowMessage> messagesOf(const TypeCharacters& step);
std::vector<HostWindowMessage> messagesOf(const PressKey& step);
