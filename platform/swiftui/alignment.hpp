#pragma once

namespace swiftui {

enum class HorizontalAlignment { leading, center, trailing };

/// A view without text has both baselines at its bottom.
enum class VerticalAlignment { top, center, bottom, firstTextBaseline, lastTextBaseline };

struct Alignment {
  HorizontalAlignment horizontal = HorizontalAlignment::center;
  VerticalAlignment vertical = VerticalAlignment::center;

  static const Alignment center;
  static const Alignment leading;
  static const Alignment topLeading;

  friend bool operator==(const Alignment&, const Alignment&) = default;
};

inline constexpr Alignment Alignment::center{};
inline constexpr Alignment Alignment::leading{.horizontal = HorizontalAlignment::leading};
inline constexpr Alignment Alignment::topLeading{.horizontal = HorizontalAlignment::leading,
                                                 .vertical = VerticalAlignment::top};

/// How the lines of one text stand to each other; it does not move the text as a whole.
enum class TextAlignment { leading, center, trailing };

enum class LayoutDirection { leftToRight, rightToLeft };

}  // namespace swiftui
