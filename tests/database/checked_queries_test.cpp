#include <concepts>

#include "database/book.hpp"

// What the compiler refuses. Each claim stands beside the nearest query that it accepts, so that none can hold by
// accident.

namespace {

template <auto member>
concept HasColumn = requires { database::column<member>; };
static_assert(HasColumn<&Book::title>);
static_assert(!HasColumn<&Book::note>, "a member that is no column");

template <class Column, class Given>
concept Comparable = requires(Column column, Given given) { column == given; };
static_assert(Comparable<decltype(title), const char*> && Comparable<decltype(title), std::string>);
static_assert(Comparable<decltype(pages), int> && Comparable<decltype(pages), short>);
static_assert(!Comparable<decltype(title), int> && !Comparable<decltype(title), char>, "a number for a text");
static_assert(!Comparable<decltype(pages), const char*>, "a text for a number");
static_assert(!Comparable<decltype(pages), double> && !Comparable<decltype(pages), long>, "a number that may not fit");
static_assert(!Comparable<decltype(pages), decltype(pages)>, "a column for a value");

template <class... Assignments>
concept Insertable = requires(database::Database database, Assignments... values) { database.insert(values...); };
using Title = database::Assignment<&Book::title>;
using Pages = database::Assignment<&Book::pages>;
using Weight = database::Assignment<&Book::weight>;
using Id = database::Assignment<&Book::id>;
using Room = database::Assignment<&Shelf::room>;
static_assert(Insertable<Title, Pages, Weight> && Insertable<Weight, Title, Pages> && Insertable<Room>);
static_assert(!Insertable<Title, Pages>, "a column is missing");
static_assert(!Insertable<Title, Pages, Pages>, "one is missing, one stands twice");
static_assert(!Insertable<Title, Pages, Weight, Weight>, "one stands twice");
static_assert(!Insertable<Title, Pages, Weight, Id>, "the key is the database's");
static_assert(!Insertable<Title, Pages, Room>, "a column of another table");

template <class Left, class Right>
concept Joinable = requires(Left left, Right right) { left&& right; };
static_assert(Joinable<database::Condition<Book>, database::Condition<Book>>);
static_assert(!Joinable<database::Condition<Book>, database::Condition<Shelf>>, "conditions on two tables");

}  // namespace
