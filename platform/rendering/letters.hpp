#pragma once

#include <cstddef>
#include <string_view>

namespace rendering {

/// The character that begins there, whose position is moved behind it. The text is valid UTF-8.
char32_t nextCharacter(std::string_view text, std::size_t& position);

/// White space of any kind.
bool isBlank(char32_t character);

/// Characters that tell how others are drawn and are not drawn themselves.
bool isInvisible(char32_t character);

/// Whether the script's letters hang together: on a line of their own, or by the line that they hang from.
bool joinsLetters(char32_t character);

bool isKorean(char32_t character);

/// Whether what the reader takes for one character is a picture and no letter.
bool isEmoji(std::string_view character);

/// The text without the blanks at its end.
std::string_view withoutBlanksAtEnd(std::string_view text);

}  // namespace rendering
