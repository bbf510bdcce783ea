#pragma once

namespace quintara {

// The character that a byte stands for in Windows-1252; replacementCharacter for the five bytes without one.
char32_t WesternCharacter(unsigned char byte);

}  // namespace quintara
