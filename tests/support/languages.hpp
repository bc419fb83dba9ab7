#pragma once

namespace support {

/// The languages that there are words in, as their catalogues are called.
inline constexpr const char* languages[] = {"ar", "de", "es", "fr",    "he", "hi", "it",
                                            "ja", "ko", "nl", "pt_BR", "ru", "tr", "zh_CN"};

}  // namespace support
