#pragma once

#include "elements/ElementID.h"
#include "foundation/ByteReader.h"

#include <QByteArray>

#include <iterator>
#include <optional>

namespace tessara {

/// One element of a run: identifier, and the bytes after the length.
struct ElementView {
    std::uint8_t id;
    Bytes content;
};

/// A run of elements as a beacon carries it (IEEE Std 802.11-2020, 9.4.2.1): identifier byte,
/// length byte, content. Walks without copying; an element that runs past the end of the bytes
/// ends the walk and is not given.
class ElementRun {
public:
    explicit ElementRun(Bytes bytes)
        : m_bytes(bytes)
    {
    }
    /// The array must outlive the run.
    explicit ElementRun(const QByteArray& bytes)
        : m_bytes(reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                  static_cast<std::size_t>(bytes.size()))
    {
    }

    class Iterator {
    public:
        using value_type = ElementView;
        using difference_type = std::ptrdiff_t;

        Iterator() = default;
        explicit Iterator(Bytes rest)
            : m_rest(rest)
        {
            stopIfIncomplete();
        }

        ElementView operator*() const { return {m_rest[0], m_rest.subspan(2, m_rest[1])}; }
        Iterator& operator++()
        {
            m_rest = m_rest.subspan(std::size_t{2} + m_rest[1]);
            stopIfIncomplete();
            return *this;
        }
        Iterator operator++(int)
        {
            const Iterator before = *this;
            ++*this;
            return before;
        }
        bool operator==(std::default_sentinel_t) const { return m_rest.empty(); }

    private:
        void stopIfIncomplete()
        {
            if (m_rest.size() < 2 || m_rest.size() - 2 < m_rest[1])
                m_rest = {};
        }

        Bytes m_rest;
    };

    Iterator begin() const { return Iterator(m_bytes); }
    std::default_sentinel_t end() const { return {}; }

    /// The first element of an identifier.
    std::optional<ElementView> find(std::uint8_t id) const;
    /// Whether a vendor element of this OUI (three bytes, first one first) and type is present.
    bool hasVendorElement(std::uint32_t oui, std::uint8_t type) const;

private:
    Bytes m_bytes;
};

/// The name of the network in a run: absent when there is no SSID element, when it is empty or
/// all zero bytes (a hidden network, IEEE Std 802.11-2020, 9.4.2.2 and common practice), or when
/// it is no UTF-8.
std::optional<QString> networkName(const ElementRun& run);

} // namespace tessara
