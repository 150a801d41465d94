#pragma once

#include <chrono>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace Orders {

inline constexpr std::int64_t FirstOrderNumber = 10'001;

struct City {
    const char* Name;
    const char* Currency;
    const char* DialCode; ///< Of country and city: "+49 40".
};

struct Customer {
    std::string Name;
    const City* Place = nullptr;
    std::string Phone; ///< Empty where none is known.
};

struct Order {
    const Orders::Customer* Customer = nullptr;
    std::chrono::year_month_day Date;
    std::int64_t Cents = 0;
    bool Paid = false;
    bool Shipped = false;
    std::string Notes; ///< Of one line or several; often empty.
};

/// The cities of all customers, in the order of their names, with a | between each two.
std::string CityNames();

/// Invents customers and their orders by the date, from one fixed seed. The last tenth is partly unpaid and unshipped.
class Invention {
public:
    explicit Invention(std::int64_t count);

    /// Valid until the next one.
    const Order& Next();

private:
    /// Below bound. Not by std::uniform_int_distribution, which differs between standard libraries.
    std::uint32_t Pick(std::uint32_t bound);
    template <typename T, std::size_t Size>
    const T& OneOf(const T (&choices)[Size])
    {
        return choices[Pick(static_cast<std::uint32_t>(Size))];
    }
    Customer InventCustomer();
    void WriteNotes(std::string& notes);

    std::mt19937 random_{20'240'315};
    std::int64_t count_;
    std::int64_t made_ = 0;
    std::vector<Customer> customers_;
    Order order_;
};

} // namespace Orders
