#pragma once

class HostDocument;
class OdDbEntity;

/// Brings a text into sight: selects it, and moves the view to it where it lies outside; one whose letters
/// would be too small to read is shown larger.
void show_text(HostDocument& document, const OdDbEntity& text);
