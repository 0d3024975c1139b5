#include "core/text_util.h"

#include <charconv>

namespace mc {

std::string_view Trim(std::string_view s) {
  const char* ws = " \t";
  auto b = s.find_first_not_of(ws);
  if (b == std::string_view::npos) return {};
  auto e = s.find_last_not_of(ws);
  return s.substr(b, e - b + 1);
}

std::string TrimCopy(std::string_view s) {
  return std::string(Trim(s));
}

std::vector<std::string> SplitLines(std::string_view text) {
  std::vector<std::string> lines;
  std::size_t pos = 0;
  while (pos < text.size()) {
    auto nl = text.find('\n', pos);
    std::string_view line =
        text.substr(pos, nl == std::string_view::npos ? std::string_view::npos : nl - pos);
    if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
    lines.emplace_back(line);
    if (nl == std::string_view::npos) break;
    pos = nl + 1;
  }
  return lines;
}

std::string JoinCrLf(const std::vector<std::string>& lines) {
  std::string out;
  for (const auto& l : lines) {
    out += l;
    out += "\r\n";
  }
  return out;
}

bool StartsWith(std::string_view s, std::string_view prefix) {
  return s.substr(0, prefix.size()) == prefix;
}

std::string ToLower(std::string_view s) {
  std::string r(s);
  for (auto& c : r)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return r;
}

std::string_view Left(std::string_view s, std::size_t n) {
  return s.substr(0, n);
}

std::size_t DisplayWidth(std::string_view s) {
  std::size_t n = 0;
  for (char c : s)
    if ((static_cast<unsigned char>(c) & 0xC0) != 0x80) ++n;
  return n;
}

std::string PadRight(std::string_view s, std::size_t width) {
  std::string r(s);
  std::size_t w = DisplayWidth(s);
  if (w < width) r.append(width - w, ' ');
  return r;
}

std::string PadLeft(std::string_view s, std::size_t width) {
  std::size_t w = DisplayWidth(s);
  std::string r = w < width ? std::string(width - w, ' ') : std::string();
  return r.append(s);
}

bool ParseInt(std::string_view s, long long& out) {
  s = Trim(s);
  if (!s.empty() && s.front() == '+') s.remove_prefix(1);
  if (s.empty()) return false;
  auto [p, ec] = std::from_chars(s.data(), s.data() + s.size(), out);
  return ec == std::errc() && p == s.data() + s.size();
}

}  // namespace mc
