#pragma once

#include <functional>
#include <optional>
#include <string_view>

/// Works out `+ - * / ^`, signs, brackets and decimal numbers. `operand` gives the number of a reference: it
/// gets the text from "%<" to ">%". Nothing for what is no such expression, where an operand has no number,
/// or where the outcome is none (division by 0). Brackets that nest cost heap.
std::optional<double> odEvaluateExpression(
    std::u16string_view text, const std::function<std::optional<double>(std::u16string_view)>& operand);

/// The whole of `text` as a decimal number, with blanks around it.
std::optional<double> odNumberOf(std::u16string_view text);
