#pragma once

#include "elements/DumpBuffer.h"
#include "elements/Field.h"
#include "foundation/ByteReader.h"

#include <QByteArray>

#include <memory>
#include <string>
#include <vector>

namespace tessara {

class ElementDecoder;

/// One element of a beacon, decoded for the eye: names and values as text, on the first request
/// and once. Nothing is refused; what is not known is shown as bytes. Texts are UTF-8.
///
/// Belongs to one thread at a time, together with the other elements of its run. Moving it leaves
/// its rows where they are.
class TSInfoElement {
public:
    /// @param data the bytes behind the length, which the decoder keeps
    /// @param decoder also keeps the rows; the elements of a run share theirs
    TSInfoElement(std::uint8_t id, Bytes data, std::shared_ptr<ElementDecoder> decoder);

    std::uint8_t ieID() const { return m_ieID; }
    /// In bytes.
    std::size_t ieLength() const { return m_ieData.size(); }
    /// The name of the element; a vendor's own has the vendor's name in it.
    std::string ieName() const;
    /// One sentence, for users who want their texts in English; empty otherwise.
    std::string ieDescription() const;
    /// The same for elements of one kind in all beacons: by it a view remembers what it expanded.
    std::string ieIdentifier() const;

    // These decode.

    /// One line; empty if there is nothing to say. Lives as long as the element.
    std::string_view ieSummary() const;
    /// The rows: identifier and length, and what the element says.
    std::span<const Field> fields() const;
    /// The element as lines of text: its name and summary, and each row, indented.
    std::string ieDump() const;
    void appendDump(DumpBuffer& text) const;

private:
    void decode() const;

    std::uint8_t m_ieID;
    Bytes m_ieData;
    std::shared_ptr<ElementDecoder> m_decoder; ///< keeps the bytes, and what the following point to
    mutable bool m_isDecoded = false;
    mutable std::string_view m_ieSummary;
    mutable std::span<const Field> m_ieFields;
};

/// Appends a row and those below it, each as a line behind a line feed and an indent.
/// @param depth how many indents of four blanks
void composeField(const Field& field, std::size_t depth, DumpBuffer& lines);

/// Cuts a run of elements as beacons carry it. The order is kept. An element that the run cuts
/// short has its length all the same, and zeros where bytes are missing.
std::vector<TSInfoElement> informationElements(const QByteArray& run);

} // namespace tessara
