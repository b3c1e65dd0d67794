#pragma once

struct _FcCharSet;

/// Number of the Windows character set that a typeface is made for, by the characters it has: that of western
/// Europe for all with Latin letters, 1 (any) where nothing tells. `symbols` says that its characters are no
/// letters at all.
int odCharsetOfTypeface(const _FcCharSet* characters, bool symbols);
