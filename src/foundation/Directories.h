#pragma once

#include <QString>

#include <optional>

namespace tessara {

/// Questions that a record asks about its BSSID and an element about its OUI. The model does not
/// know who answers: the start-up code installs the real directories, and until then, or in a
/// test that installs none, nobody knows anything.

/// Names the makers of equipment.
class VendorDirectory {
public:
    virtual ~VendorDirectory() = default;
    /// The maker of the access point of a normalised BSSID ("0A:1B:2C:3D:4E:5F").
    virtual std::optional<QString> vendorFor(const QString& bssid) const = 0;
    /// The same as one word, for where space is short ("Cisco").
    virtual std::optional<QString> shortVendorFor(const QString&) const { return std::nullopt; }
};

/// Names that devices announce about themselves on the local network.
class DeviceNameDirectory {
public:
    virtual ~DeviceNameDirectory() = default;
    virtual std::optional<QString> deviceNameFor(const QString& bssid) const = 0;
};

/// The user's notes on networks.
class AnnotationsDirectory {
public:
    virtual ~AnnotationsDirectory() = default;
    virtual std::optional<QString> annotationsFor(const QString& bssid) const = 0;
    /// Stores a note and sees to it that it reaches the disk; an empty note removes the entry.
    virtual void setAnnotations(const QString& bssid, const QString& note) = 0;
};

/// The directories in force. Pointers are not owned; none stands for "nobody knows".
struct Directories {
    VendorDirectory* vendors = nullptr;
    DeviceNameDirectory* deviceNames = nullptr;
    AnnotationsDirectory* annotations = nullptr;

    /// What the records ask.
    static Directories& installed();
};

} // namespace tessara
