#include "elements/VenueTypes.h"

#include <iterator>

namespace tessara {

namespace {

constexpr ValueText kUnspecified[] = {
    {0, "Unspecified"},
};
constexpr ValueText kAssembly[] = {
    {0, "Unspecified Assembly"},
    {1, "Arena"},
    {2, "Stadium"},
    {3, "Passenger Terminal"},
    {4, "Amphitheater"},
    {5, "Amusement Park"},
    {6, "Place of Workship"},
    {7, "Convention Center"},
    {8, "Library"},
    {9, "Museum"},
    {10, "Restaurant"},
    {11, "Theater"},
    {12, "Bar"},
    {13, "Coffee Shop"},
    {14, "Zoo or Aquarium"},
    {15, "Emergency Coordination Center"},
};
constexpr ValueText kBusiness[] = {
    {0, "Unspecified Business"},
    {1, "Doctor or Dentist Office"},
    {2, "Bank"},
    {3, "Fire Station"},
    {4, "Police Station"},
    {5, "Post Office"},
    {6, "Professional Office"},
    {7, "Research and Development Facility"},
    {8, "Attorney Office"},
};
constexpr ValueText kEducational[] = {
    {0, "Unspecified Educational"},
    {1, "School, Primary"},
    {2, "School, Secondary"},
    {3, "University or College"},
};
constexpr ValueText kFactoryIndustrial[] = {
    {0, "Unspeficied Factory and Industrial"},
    {1, "Factory"},
};
constexpr ValueText kInstitutional[] = {
    {0, "Unspecified Institutional"},
    {1, "Hospital"},
    {2, "Long-Term Care Facility"},
    {3, "Alcohol and Drug Re-habilitation Center"},
    {4, "Group Home"},
    {5, "Prison or Jail"},
};
constexpr ValueText kMercantile[] = {
    {0, "Unspecified Mercantile"},     {1, "Retail Store"},  {2, "Grocery Market"},
    {3, "Automotive Service Station"}, {4, "Shopping Mall"}, {5, "Gas Station"},
};
constexpr ValueText kResidential[] = {
    {0, "Unspecified Residential"}, {1, "Private Residence"},
    {2, "Hotel or Motel"},          {3, "Dormitory"},
    {4, "Boarding House"},
};
constexpr ValueText kStorage[] = {
    {0, "Unspecified Storage"},
};
constexpr ValueText kUtilityMiscellaneous[] = {
    {0, "Unspecified Utility and Miscellaneous"},
};
constexpr ValueText kVehicular[] = {
    {0, "Unspecified Vehicular"},
    {1, "Automobile or Truck"},
    {2, "Airplane"},
    {3, "Bus"},
    {4, "Ferry"},
    {5, "Ship or Boat"},
    {6, "Train"},
    {7, "Motor Bike"},
};
constexpr ValueText kOutdoor[] = {
    {0, "Unspecified Outdoor"}, {1, "Muni-mesh Network"}, {2, "City Park"}, {3, "Rest Area"},
    {4, "Traffic Control"},     {5, "Bus Stop"},          {6, "Kiosk"},
};

struct VenueGroup {
    std::string_view text;
    std::span<const ValueText> types;
};
/// By the number of the group.
constexpr VenueGroup kGroups[] = {
    {"Unspecified", kUnspecified},
    {"Assembly", kAssembly},
    {"Business", kBusiness},
    {"Educational", kEducational},
    {"Factory and Industrial", kFactoryIndustrial},
    {"Institutional", kInstitutional},
    {"Mercantile", kMercantile},
    {"Residential", kResidential},
    {"Storage", kStorage},
    {"Utility and Miscellaneous", kUtilityMiscellaneous},
    {"Vehicular", kVehicular},
    {"Outdoor", kOutdoor},
};

} // namespace

std::optional<std::string_view> textForVenueGroup(std::uint8_t group)
{
    if (group >= std::size(kGroups))
        return std::nullopt;
    return kGroups[group].text;
}

std::span<const ValueText> venueTypesForVenueGroup(std::uint8_t group)
{
    if (group >= std::size(kGroups))
        return {};
    return kGroups[group].types;
}

} // namespace tessara
