#pragma once

#include "elements/ElementDecoder.h"

namespace tessara {

/// What vendors say in elements of their own. The first three bytes are the vendor's OUI, the
/// fourth is a type that the vendor has given (IEEE Std 802.11-2020, 9.4.2.25).

/// Any of them: the OUI, the type, and what is known behind them.
std::span<const Field> parseVendorSpecificIE(ElementDecoder& e);

std::span<const Field> parseVendorCiscoIE(ElementDecoder& e);
std::span<const Field> parseVendorMicrosoftIE(ElementDecoder& e);
std::span<const Field> parseVendorArubaIE(ElementDecoder& e);
std::span<const Field> parseVendorZebraIE(ElementDecoder& e);
std::span<const Field> parseVendorRouterboardIE(ElementDecoder& e);
std::span<const Field> parseVendorWiFiAllianceIE(ElementDecoder& e);

/// An element with an identifier of its own: CKIP and the access point's name.
std::span<const Field> parseCiscoCCX1CKIP(ElementDecoder& e);

} // namespace tessara
