#pragma once

/// Names of the keyed archive's own parts, as its reader and its writer share them.
namespace tessara::KeyedArchive {

// The property list of an archive.
inline constexpr char kArchiver[] = "$archiver";
inline constexpr char kVersion[] = "$version";
inline constexpr char kObjects[] = "$objects"; ///< all objects, in an array
inline constexpr char kTop[] = "$top";         ///< what was archived, by name
inline constexpr char kRoot[] = "root";

// An object: a dictionary of what it keeps and its class, which is an object too.
inline constexpr char kClass[] = "$class";
inline constexpr char kClassName[] = "$classname";
inline constexpr char kClasses[] = "$classes"; ///< the class and its ancestry

// The platform's own classes.
inline constexpr char kElements[] = "NS.objects"; ///< of arrays; the values of dictionaries
inline constexpr char kKeys[] = "NS.keys";
inline constexpr char kText[] = "NS.string";
inline constexpr char kBytes[] = "NS.data";
inline constexpr char kTime[] = "NS.time";
inline constexpr char kColorSpace[] = "NSColorSpace";
inline constexpr char kRGB[] = "NSRGB";     ///< "0.5 0.25 1", or with alpha behind it, as bytes
inline constexpr char kWhite[] = "NSWhite"; ///< "0.5" or "0.5 1" likewise
inline constexpr char kCMYK[] = "NSCMYK";   ///< "0 0.5 1 0" likewise
inline constexpr char kColor[] = "NSColor"; ///< what a colour of a catalogue stands for

/// 2001-01-01 00:00 UTC, from which dates count, in seconds since 1970.
inline constexpr double kReferenceDate = 978307200;

} // namespace tessara::KeyedArchive
