#pragma once

#include <string>
#include <variant>
#include <vector>

#include "desk/script/key_chord.h"

/// A plain line: typed at the prompt and ended with Enter. Empty for Enter alone.
struct TypeLine {
  std::u16string text;
};

/// What a mouse step does: with the left button, or a click with the right one.
enum class MouseAction { click, twice, press, drag, release, right };

/// `@click`, `@double`, `@press`, `@drag`, `@release` or `@right` at a point of the drawing, in drawing units.
struct MouseStep {
  MouseAction action = MouseAction::click;
  double x = 0;
  double y = 0;
  HeldKeys held;
};

/// `@type`: characters typed one by one on the keyboard.
struct TypeCharacters {
  std::u16string text;
};

/// `@key`: one chord pressed and released.
struct PressKey {
  KeyChord chord;
};

/// `@wait`: the clock goes on by so many milliseconds.
struct WaitStep {
  int milliseconds = 0;
};

/// What a person answers to a question.
enum class ScriptAnswer { yes, no, cancel };

/// `@answer`: kept for the next question that is asked.
struct AnswerStep {
  ScriptAnswer answer = ScriptAnswer::yes;
};

/// `@menu`: what is chosen from the next menu, by its text or its number.
struct MenuStep {
  std::u16string entry;
};

/// `@field`: the code of the next field that is made or changed; empty cancels.
struct FieldStep {
  std::u16string code;
};

/// One step of a script with the number of its line, counted from 1.
struct ScriptStep {
  int line = 0;
  std::variant<TypeLine, MouseStep, TypeCharacters, PressKey, WaitStep, AnswerStep, MenuStep, FieldStep> what;
};

using Script = std::vector<ScriptStep>;
