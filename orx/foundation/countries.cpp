// The country table of ORX::orxDlCountrys: the code pages Windows gives the main language of
// each country (the locale's default ANSI and OEM code pages).
#include "orx/foundation/code_pages.h"

namespace ORX {

namespace {

constexpr CountryEntry kCountries[] = {
    {L"AE", L"United Arab Emirates", 1256, 720},
    {L"AL", L"Albania", 1250, 852},
    {L"AR", L"Argentina", 1252, 850},
    {L"AT", L"Austria", 1252, 850},
    {L"AU", L"Australia", 1252, 850},
    {L"AZ", L"Azerbaijan", 1254, 857},
    {L"BA", L"Bosnia and Herzegovina", 1250, 852},
    {L"BE", L"Belgium", 1252, 850},
    {L"BG", L"Bulgaria", 1251, 866},
    {L"BR", L"Brazil", 1252, 850},
    {L"BY", L"Belarus", 1251, 866},
    {L"CA", L"Canada", 1252, 850},
    {L"CH", L"Switzerland", 1252, 850},
    {L"CL", L"Chile", 1252, 850},
    {L"CN", L"China", 936, 936},
    {L"CO", L"Colombia", 1252, 850},
    {L"CZ", L"Czechia", 1250, 852},
    {L"DE", L"Germany", 1252, 850},
    {L"DK", L"Denmark", 1252, 850},
    {L"DZ", L"Algeria", 1256, 720},
    {L"EE", L"Estonia", 1257, 775},
    {L"EG", L"Egypt", 1256, 720},
    {L"ES", L"Spain", 1252, 850},
    {L"FI", L"Finland", 1252, 850},
    {L"FR", L"France", 1252, 850},
    {L"GB", L"United Kingdom", 1252, 850},
    {L"GR", L"Greece", 1253, 737},
    {L"HK", L"Hong Kong", 950, 950},
    {L"HR", L"Croatia", 1250, 852},
    {L"HU", L"Hungary", 1250, 852},
    {L"ID", L"Indonesia", 1252, 850},
    {L"IE", L"Ireland", 1252, 850},
    {L"IL", L"Israel", 1255, 862},
    {L"IN", L"India", 1252, 437},
    {L"IR", L"Iran", 1256, 720},
    {L"IS", L"Iceland", 1252, 850},
    {L"IT", L"Italy", 1252, 850},
    {L"JP", L"Japan", 932, 932},
    {L"KR", L"Korea", 949, 949},
    {L"LT", L"Lithuania", 1257, 775},
    {L"LU", L"Luxembourg", 1252, 850},
    {L"LV", L"Latvia", 1257, 775},
    {L"MA", L"Morocco", 1256, 720},
    {L"MK", L"North Macedonia", 1251, 866},
    {L"MN", L"Mongolia", 1251, 866},
    {L"MX", L"Mexico", 1252, 850},
    {L"MY", L"Malaysia", 1252, 850},
    {L"NL", L"Netherlands", 1252, 850},
    {L"NO", L"Norway", 1252, 850},
    {L"NZ", L"New Zealand", 1252, 850},
    {L"PE", L"Peru", 1252, 850},
    {L"PH", L"Philippines", 1252, 437},
    {L"PK", L"Pakistan", 1256, 720},
    {L"PL", L"Poland", 1250, 852},
    {L"PT", L"Portugal", 1252, 850},
    {L"RO", L"Romania", 1250, 852},
    {L"RS", L"Serbia", 1250, 852},
    {L"RU", L"Russia", 1251, 866},
    {L"SA", L"Saudi Arabia", 1256, 720},
    {L"SE", L"Sweden", 1252, 850},
    {L"SG", L"Singapore", 1252, 437},
    {L"SI", L"Slovenia", 1250, 852},
    {L"SK", L"Slovakia", 1250, 852},
    {L"TH", L"Thailand", 874, 874},
    {L"TN", L"Tunisia", 1256, 720},
    {L"TR", L"Turkey", 1254, 857},
    {L"TW", L"Taiwan", 950, 950},
    {L"UA", L"Ukraine", 1251, 866},
    {L"US", L"United States", 1252, 437},
    {L"UZ", L"Uzbekistan", 1254, 857},
    {L"VE", L"Venezuela", 1252, 850},
    {L"VN", L"Vietnam", 1258, 1258},
    {L"ZA", L"South Africa", 1252, 437},
};

}  // namespace

CountryEntry const* orxDlCountrys(unsigned long& count) {
    count = sizeof kCountries / sizeof kCountries[0];
    return kCountries;
}

}  // namespace ORX
