#include "orders/Invention.h"

#include <algorithm>

namespace Orders {

namespace {

constexpr City Cities[] = {
    {"Amsterdam", "EUR", "+31 20"},     {"Århus", "DKK", "+45 86"},       {"Barcelona", "EUR", "+34 93"},
    {"Bergen", "NOK", "+47 55"},        {"Birmingham", "GBP", "+44 121"}, {"Brno", "CZK", "+420 54"},
    {"Chicago", "USD", "+1 312"},       {"Dublin", "EUR", "+353 1"},      {"Gdańsk", "PLN", "+48 58"},
    {"Genève", "CHF", "+41 22"},        {"Glasgow", "GBP", "+44 141"},    {"Göteborg", "SEK", "+46 31"},
    {"Hamburg", "EUR", "+49 40"},       {"Helsinki", "EUR", "+358 9"},    {"İzmir", "TRY", "+90 232"},
    {"Köln", "EUR", "+49 221"},         {"Lyon", "EUR", "+33 4"},         {"Madrid", "EUR", "+34 91"},
    {"Melbourne", "AUD", "+61 3"},      {"Milano", "EUR", "+39 02"},      {"Montréal", "CAD", "+1 514"},
    {"München", "EUR", "+49 89"},       {"Nagoya", "JPY", "+81 52"},      {"Portland", "USD", "+1 503"},
    {"Porto", "EUR", "+351 22"},        {"São Paulo", "BRL", "+55 11"},   {"Seattle", "USD", "+1 206"},
    {"Thessaloníki", "EUR", "+30 231"}, {"Wien", "EUR", "+43 1"},         {"Zürich", "CHF", "+41 44"},
};

constexpr const char* FamilyNames[] = {
    "Abbott",    "Andersen", "Bianchi",  "Brandt",    "Carvalho", "Castillo",  "Dubois",    "Eriksson",
    "Fairbanks", "Ferrari",  "Fischer",  "García",    "Hansen",   "Hoffmann",  "Ivanova",   "Jansen",
    "Kaya",      "Keller",   "Kowalski", "Lindqvist", "MacLeod",  "Martin",    "Moreau",    "Müller",
    "Nakamura",  "Nguyen",   "Novák",    "O’Connor",  "Okafor",   "Olsen",     "Papadakis", "Pereira",
    "Petit",     "Quinn",    "Rossi",    "Sandberg",  "Schröder", "Silva",     "Tanaka",    "Thornton",
    "Vasquez",   "Virtanen", "Weber",    "Whitfield", "Yılmaz",   "Zieliński",
};

constexpr const char* Trades[] = {
    "Bakery",  "Bicycles",  "Books",    "Carpentry", "Ceramics",    "Chandlery", "Coffee", "Electrics",
    "Flowers", "Furniture", "Gardens",  "Hardware",  "Instruments", "Lighting",  "Optics", "Outfitters",
    "Paints",  "Papers",    "Plumbing", "Printing",  "Textiles",    "Timber",    "Tools",  "Wines",
};

constexpr const char* GivenNames[] = {
    "Ada",   "Björn", "Chloé", "Daniel", "Elif",  "Fatima", "Grace",  "Hugo",  "Inês",  "Jonas",
    "Kenji", "Lucía", "Mara",  "Noor",   "Oskar", "Petra",  "Rafael", "Sofia", "Tomáš", "Wanda",
};

constexpr const char* Wishes[] = {
    "Deliver to the back door.",
    "Please ring twice; the bell is faint.",
    "Ring ahead of the delivery.",
    "Leave it with the neighbours at number 14.",
    "Two pallets, no lift truck on site.",
    "Gift: no invoice in the parcel.",
    "Invoice to head office, goods to the shop.",
    "Part delivery is fine.",
    "Not ahead of the 15th, the shop is closed.",
    "Handle with care: glass.",
    "Same colours as last time.",
    "Add a copy of the test report.",
};

} // namespace

std::string CityNames()
{
    std::string names;
    for (const City& city : Cities)
        (names += names.empty() ? "" : "|") += city.Name;
    return names;
}

Invention::Invention(std::int64_t count)
    : count_(count)
{
    const std::int64_t customers = std::clamp<std::int64_t>(count / 8, 40, 5'000);
    customers_.reserve(static_cast<std::size_t>(customers));
    for (std::int64_t i = 0; i < customers; ++i)
        customers_.push_back(InventCustomer());
}

std::uint32_t Invention::Pick(std::uint32_t bound)
{
    return static_cast<std::uint32_t>((std::uint64_t{random_()} * bound) >> 32U);
}

Customer Invention::InventCustomer()
{
    // Each pick in a statement of its own: operands have no order.
    Customer customer;
    const std::uint32_t form = Pick(4);
    if (form == 0) {
        customer.Name = OneOf(GivenNames);
        customer.Name += ' ';
    }
    customer.Name += OneOf(FamilyNames);
    if (form == 1) {
        customer.Name += " & ";
        customer.Name += OneOf(FamilyNames);
    }
    if (form != 0) {
        customer.Name += ' ';
        customer.Name += OneOf(Trades);
    }
    customer.Place = &OneOf(Cities);
    if (Pick(20) != 0) {
        customer.Phone = customer.Place->DialCode;
        customer.Phone += ' ';
        customer.Phone += std::to_string(200 + Pick(800));
        customer.Phone += ' ';
        customer.Phone += std::to_string(1000 + Pick(9000));
    }
    return customer;
}

const Order& Invention::Next()
{
    constexpr std::int64_t days = 5 * 365;
    const std::chrono::sys_days first = std::chrono::year(2019) / 7 / 1;
    const std::int64_t day = made_ * days / std::max<std::int64_t>(count_, 1);
    order_.Date = first + std::chrono::days(day);

    // The lower of two picks: some customers order often, most seldom.
    const auto customers = static_cast<std::uint32_t>(customers_.size());
    const std::uint32_t one = Pick(customers);
    order_.Customer = &customers_[std::min(one, Pick(customers))];

    // Prices from some cents to some ten thousands, the small ones more often.
    const std::uint32_t magnitude = 1 + Pick(5);
    std::uint32_t bound = 500;
    for (std::uint32_t i = 0; i < magnitude; ++i)
        bound *= 6;
    order_.Cents = 95 + Pick(bound);
    if (Pick(3) != 0)
        order_.Cents = order_.Cents / 100 * 100 + 95;

    const bool isRecent = made_ >= count_ - count_ / 10;
    order_.Shipped = isRecent ? Pick(3) != 0 : Pick(200) != 0;
    order_.Paid = order_.Shipped ? Pick(isRecent ? 3 : 60) != 0 : Pick(4) == 0;
    WriteNotes(order_.Notes);
    ++made_;
    return order_;
}

void Invention::WriteNotes(std::string& notes)
{
    notes.clear();
    if (Pick(4) != 0)
        return;
    const std::uint32_t lines = 1 + Pick(3);
    for (std::uint32_t line = 0; line < lines; ++line) {
        if (line > 0)
            notes += '\n';
        notes += OneOf(Wishes);
    }
    if (Pick(3) == 0) {
        notes += "\nAsk for ";
        notes += OneOf(GivenNames);
        notes += '.';
    }
}

} // namespace Orders
