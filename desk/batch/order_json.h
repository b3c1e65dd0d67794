#pragma once

#include <nlohmann/json_fwd.hpp>

struct BatchOptions;

/// What a batch does, apart from the drawings it does it to: what the report begins with, and what tells
/// whether a journal belongs to it. Of a script it holds the digest, so that one that was changed is another.
nlohmann::ordered_json orderJson(const BatchOptions& options);
