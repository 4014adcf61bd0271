#include "scanning/capture/RadioHeaders.h"

#include <algorithm>

namespace tessara {

namespace {

std::optional<ReceivedFrame> decodeBareFrame(Bytes packet)
{
    return ReceivedFrame{.frame = packet};
}

struct LinkType {
    int number; ///< as in tcpdump.org's list of link-layer header types
    RadioHeaderDecoder decode;
};

constexpr LinkType kLinkTypes[] = {
    {105, decodeBareFrame}, // IEEE802_11
    {119, decodePrism},     // IEEE802_11_PRISM
    {127, decodeRadiotap},  // IEEE802_11_RADIOTAP
    {163, decodeAVS},       // IEEE802_11_AVS
    {192, decodePPI},       // PPI
};

} // namespace

RadioHeaderDecoder radioHeaderDecoder(int linkType)
{
    const auto* found = std::ranges::find(kLinkTypes, linkType, &LinkType::number);
    return found == std::end(kLinkTypes) ? nullptr : found->decode;
}

} // namespace tessara
