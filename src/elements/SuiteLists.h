#pragma once

#include "elements/ElementDecoder.h"

namespace tessara {

/// Cipher and key management suites: four bytes, an OUI and a type (IEEE Std 802.11-2020,
/// 9.4.2.24.2 and 9.4.2.24.3). Types have the standard's names whatever the OUI is.

std::string_view stringForCipherType(std::uint8_t type);
std::string_view stringForAuthType(std::uint8_t type);

enum class SuiteKind { kCipher, kAuth };

/// What the rows of a suite, or of a list of them, are called.
struct SuiteNames {
    SuiteKind kind;
    std::string_view oui;
    std::string_view type;
    std::string_view count = {};
    std::string_view list = {};
};

/// The rows of one suite.
struct Suite {
    static constexpr std::size_t kSize = 4; // bytes

    Suite(ElementDecoder& e, std::size_t offset, const SuiteNames& names);

    Field oui;
    Field type;
    std::string_view text; ///< of the type
};

/// A number of suites, in two bytes, and so many of them.
struct SuiteList {
    SuiteList(ElementDecoder& e, std::size_t offset, const SuiteNames& names);

    Field count;
    Field list;             ///< with two rows for each suite
    std::string_view texts; ///< of the types, with commas
    std::size_t end;        ///< the offset behind the suites
};

} // namespace tessara
