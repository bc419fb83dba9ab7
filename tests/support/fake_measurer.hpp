#pragma once

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "swiftui/leaf_measurer.hpp"

namespace support {

/// Texts without fonts: every character is equally wide and every line equally high, so that a layout can be checked by
/// head. Knows ASCII only; what is cut ends with "…", one character wide.
class FakeMeasurer final : public swiftui::LeafMeasurer {
 public:
  double characterWidth = 10;
  std::function<swiftui::FontMetrics(const swiftui::Font&)> metrics = [](const swiftui::Font&) {
    return swiftui::FontMetrics{.ascent = 8, .descent = 2, .capHeight = 6};
  };
  std::map<std::string, swiftui::Size> images = {};
  mutable int textsMeasured = 0;

  swiftui::FontMetrics fontMetrics(const swiftui::Font& font) const override { return metrics(font); }
  swiftui::Size imageSize(const swiftui::ImageElement& image) const override {
    const auto found = images.find(image.name);
    return found == images.end() ? swiftui::Size{} : found->second;
  }

  swiftui::TextLayout layoutText(const std::string& content, const swiftui::TextStyle& style,
                                 swiftui::ProposedSize proposal) const override {
    ++textsMeasured;
    swiftui::TextLayout layout{.lines = {}, .shown = content, .scale = 1, .metrics = metrics(style.font)};
    const std::size_t perLine = atLeastOne(proposal.width.value_or(swiftui::infinity) / characterWidth);
    std::size_t allowed = atLeastOne(proposal.height.value_or(swiftui::infinity) / layout.metrics.lineHeight());
    if (style.lineLimit) allowed = std::min(allowed, atLeastOne(*style.lineLimit));
    std::vector<std::string> lines = wrapped(content, perLine);
    if (proposal.width && *proposal.width <= 0) lines = {""};
    std::size_t ellipses = 0;
    if (lines.size() > allowed) {
      std::string rest = lines[allowed - 1];
      for (std::size_t i = allowed; i < lines.size(); ++i) rest += ' ' + lines[i];
      rest.resize(std::min(rest.size(), perLine - 1));
      while (rest.ends_with(' ')) rest.pop_back();
      lines.resize(allowed);
      lines.back() = rest;
      ellipses = 1;
      layout.shown.clear();
      for (const std::string& line : lines) layout.shown += (layout.shown.empty() ? "" : " ") + line;
      layout.shown += "…";
    }
    for (const std::string& line : lines) {
      const std::size_t count = line.size() + (&line == &lines.back() ? ellipses : 0);
      layout.lines.push_back({.content = line, .width = characterWidth * static_cast<double>(count)});
    }
    return layout;
  }

 private:
  static std::size_t atLeastOne(double count) {
    return static_cast<std::size_t>(std::clamp(std::floor(count + 1e-9), 1.0, 1e6));
  }

  /// At blanks; a word that is too long for a line of its own is broken.
  static std::vector<std::string> wrapped(const std::string& content, std::size_t perLine) {
    std::vector<std::string> lines(1);
    std::string word;
    const auto take = [&] {
      std::string& line = lines.back();
      if (line.empty() || line.size() + 1 + word.size() > perLine) {
        if (!line.empty()) lines.emplace_back();
        for (; word.size() > perLine; lines.emplace_back()) {
          lines.back() = word.substr(0, perLine);
          word.erase(0, perLine);
        }
        lines.back() = word;
      } else {
        line += ' ' + word;
      }
      word.clear();
    };
    for (const char character : content) {
      if (character == ' ' || character == '\n') take();
      if (character == '\n') lines.emplace_back();
      if (character != ' ' && character != '\n') word += character;
    }
    take();
    return lines;
  }
};

}  // namespace support
