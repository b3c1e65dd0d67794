#pragma once

class HostSettings;

/// Enters the alphabets that lettered lists may use into the settings, English first. What a language pack
/// says for the user's own takes the place of the letters here.
void addListAlphabets(HostSettings& settings);
