// When two texts are the same and which comes first: one definition for =, <, >, LIKE and ORDER BY. Case does not
// count, accents do, and different spellings of one accented letter (composed, decomposed) are the same. Texts are
// UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace zv::jet {

/// Below, equal to or above 0 as the first text stands before, with or behind the second.
int compareTexts(std::string_view first, std::string_view second);

/// Appends bytes that compare like the text itself does.
void appendSortKey(std::string_view text, std::string& keys);

/// The text as LIKE compares it: case folded, composed, compatible forms made plain, ignorable characters left out.
/// The result may lie in the text itself, otherwise in the buffer.
std::string_view foldText(std::string_view text, std::string& buffer);

/// Whether all characters are ASCII.
bool isAscii(std::string_view text);

/// Copies a text into the buffer with its ASCII capitals made small.
void lowerAscii(std::string_view text, std::string& buffer);

/// Whether each character beyond ASCII stands for itself in a folded text: none of them turns into ASCII letters,
/// joins the letter before it, or vanishes. May say no of a text that has the property.
bool foldsApartFromAscii(std::string_view text);

} // namespace zv::jet
