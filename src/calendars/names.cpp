#include "calendars/names.h"

namespace mc {

std::string PlainLetters(std::string_view text) {
  // Two-byte UTF-8 sequences of Latin-1 letters, and their plain forms.
  static constexpr struct {
    unsigned char second;
    char plain;
  } kLatin1[] = {
      {0x80, 'A'}, {0x81, 'A'}, {0x82, 'A'}, {0x83, 'A'}, {0x84, 'A'}, {0x85, 'A'}, {0x87, 'C'},
      {0x88, 'E'}, {0x89, 'E'}, {0x8A, 'E'}, {0x8B, 'E'}, {0x8C, 'I'}, {0x8D, 'I'}, {0x8E, 'I'},
      {0x8F, 'I'}, {0x91, 'N'}, {0x92, 'O'}, {0x93, 'O'}, {0x94, 'O'}, {0x95, 'O'}, {0x96, 'O'},
      {0x99, 'U'}, {0x9A, 'U'}, {0x9B, 'U'}, {0x9C, 'U'}, {0x9D, 'Y'}, {0xA0, 'a'}, {0xA1, 'a'},
      {0xA2, 'a'}, {0xA3, 'a'}, {0xA4, 'a'}, {0xA5, 'a'}, {0xA7, 'c'}, {0xA8, 'e'}, {0xA9, 'e'},
      {0xAA, 'e'}, {0xAB, 'e'}, {0xAC, 'i'}, {0xAD, 'i'}, {0xAE, 'i'}, {0xAF, 'i'}, {0xB1, 'n'},
      {0xB2, 'o'}, {0xB3, 'o'}, {0xB4, 'o'}, {0xB5, 'o'}, {0xB6, 'o'}, {0xB9, 'u'}, {0xBA, 'u'},
      {0xBB, 'u'}, {0xBC, 'u'}, {0xBD, 'y'}, {0xBF, 'y'},
  };
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    char plain = 0;
    if (static_cast<unsigned char>(text[i]) == 0xC3 && i + 1 < text.size()) {
      auto next = static_cast<unsigned char>(text[i + 1]);
      for (const auto& l : kLatin1)
        if (l.second == next) plain = l.plain;
    }
    if (plain) {
      out += plain;
      ++i;
    } else {
      out += text[i];
    }
  }
  return out;
}

}  // namespace mc
