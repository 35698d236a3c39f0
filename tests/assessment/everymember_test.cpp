// Every figure of the record is stored by exactly one line of a field table, or is named here as a working value. The
// other tests fill and check a record through the same lines, so they can't detect a line that leads to another
// member's place, or a member without a line.
#include <gtest/gtest.h>

#include <array>
#include <typeinfo>
#include <utility>

#include "assessment/filetextstable.h"
#include "assessment/tables.h"

namespace {

using namespace assessment;

template <class T>
constexpr bool isArray = false;
template <class T, std::size_t N>
constexpr bool isArray<std::array<T, N>> = true;

/// The position of a member in the record, in bytes.
struct Member {
    std::string owner; ///< its struct, and its number there, from 1
    std::size_t at;
    std::size_t size;
};

template <class Struct>
std::vector<Member> membersOf();

/// Initialises a member of any type and thereby learns the type: members, also new ones, are found without their names.
struct Finder {
    std::vector<Member>* members = nullptr;
    std::size_t* end = nullptr;
    int number = 0;
    const char* owner = "";

    template <class T>
    operator T() const { // NOLINT(google-explicit-constructor)
        const std::size_t at = (*end + alignof(T) - 1) / alignof(T) * alignof(T);
        *end = at + sizeof(T);
        if constexpr (std::is_aggregate_v<T> && !isArray<T>)
            for (const Member& inner : membersOf<T>())
                members->push_back({inner.owner, at + inner.at, inner.size});
        else
            members->push_back({owner + (" " + std::to_string(number)), at, sizeof(T)});
        return T();
    }
};

template <class Struct, std::size_t... Index>
constexpr bool takes(std::index_sequence<Index...>) {
    return requires { Struct{(static_cast<void>(Index), Finder{})...}; };
}

template <class Struct, std::size_t Count = 1>
constexpr std::size_t memberCount() {
    if constexpr (takes<Struct>(std::make_index_sequence<Count>()))
        return memberCount<Struct, Count + 1>();
    else
        return Count - 1;
}

template <class Struct>
std::vector<Member> membersOf() {
    std::vector<Member> members;
    std::size_t end = 0;
    [&]<std::size_t... Index>(std::index_sequence<Index...>) {
        [[maybe_unused]] const Struct object{
            Finder{&members, &end, static_cast<int>(Index + 1), typeid(Struct).name()}...};
    }
    (std::make_index_sequence<memberCount<Struct>()>());
    return members;
}

/// The bytes of a record that a line or a working value covers.
template <class Record>
class Reached {
public:
    template <class Value>
    void mark(const Value& place, const std::string& by) {
        const auto at =
            static_cast<std::size_t>(reinterpret_cast<const char*>(&place) - reinterpret_cast<const char*>(&record));
        ASSERT_LE(at + sizeof(Value), sizeof(Record)) << by;
        for (std::size_t i = at; i < at + sizeof(Value); ++i) {
            EXPECT_TRUE(m_by[i].empty() || m_mayShare) << by << " and " << m_by[i] << " lead to one place";
            m_by[i] = by;
        }
    }
    /// All lines of a table, whose rows are the record or a part of it.
    template <class Row>
    void markTable(const FieldTable<Row>& table, Row& row) {
        for (const FieldLine& line : table.fields())
            if (line.at != nullptr)
                std::visit([&](auto* place) { mark(*place, table.name() + "." + line.name); }, line.at(&row));
    }
    /// Name, birth date and ID number are in two tables.
    void shareFromHere(bool may = true) { m_mayShare = may; }

    void expectAll() const {
        const std::vector<Member> members = membersOf<Record>();
        EXPECT_FALSE(members.empty());
        for (const Member& member : members)
            for (std::size_t i = member.at; i < member.at + member.size; ++i)
                if (m_by[i].empty()) {
                    ADD_FAILURE() << "no line leads to member " << member.owner;
                    break;
                }
    }

    Record record;

private:
    std::vector<std::string> m_by = std::vector<std::string>(sizeof(Record));
    bool m_mayShare = false;
};

template <class Row>
void expectAllOf(std::initializer_list<const FieldTable<Row>*> tables) {
    Reached<Row> reached;
    for (const FieldTable<Row>* table : tables) {
        Reached<Row> alone;
        alone.markTable(*table, alone.record);
        reached.shareFromHere();
        reached.markTable(*table, reached.record);
    }
    reached.expectAll();
}

TEST(EveryMember, OfTheRecordIsStoredByOneLineOrAWorkingValue) {
    Reached<Assessment> reached;
    Assessment& record = reached.record;
    reached.markTable(dataTable(), record);
    reached.markTable(cpiDefaultTable(), record);
    reached.markTable(cgtDetailsOtherTable(), record.capitalGains);
    reached.markTable(lumpSumTaxTable(), record.lumpSums);
    reached.markTable(fileTextsTable(), record.fileTexts);
    reached.markTable(mutualFundsTable(), record.funds);
    for (const ItemTable& line : itemTables())
        if (line.list != nullptr) reached.mark(line.list(record.itemised).rows, line.flagField);
    const auto working = [&](const auto&... values) { (reached.mark(values, "working values"), ...); };
    working(record.capitalGains.assets, record.capitalGains.trustOther, record.policies); // they have rows of their own
    working(record.CurPolicy, record.PolicyMonthlyIncome, record.tax.LastScaleTax, record.rrrOld.TotPremPaid);
    working(record.itemised.NARAPolicyIncomeItemise, record.itemised.DTHInvestments.flag,
            record.itemised.DISAInvestments.flag);
    working(record.drawDownCosts, record.drawDownPhases, record.car, record.premiumQuote, record.premiums);
    working(record.DCLNO, record.ClientOnFile, record.inFile, record.ClientChanged, record.SaveThenNew, record.changed,
            record.GRINC, record.FinChargeState, record.unstoredRates);
    reached.shareFromHere();
    reached.markTable(persDetailsTable(), record);
    reached.expectAll();
    Reached<Assessment> front;
    front.markTable(persDetailsTable(), front.record);
}

TEST(EveryMember, OfEachListsRowsIsStored) {
    expectAllOf<Policy>({&polsInvestsTable()});
    expectAllOf<CGTAssetRecord>({&cgtDetailsTable()});
    expectAllOf<CGTTrustRow>({&cgtTrustOtherTable()});
    expectAllOf<HeadFootLines>({&headFootTable()});
    for (const ItemLayout timed : {ItemLayout::occurrenceAge, ItemLayout::maturityAge}) {
        const FieldTable<ItemRow>* tables[2] = {};
        for (const ItemTable& line : itemTables())
            if (line.table != nullptr && (line.layout == timed || line.layout == ItemLayout::income))
                tables[line.layout == timed ? 0 : 1] = line.table;
        expectAllOf<ItemRow>({tables[0], tables[1]});
    }
}

TEST(EveryMember, OfTheChangedFlagsAsksAndIsClearedBySave) {
    const std::vector<Member> flags = membersOf<Changed>();
    EXPECT_EQ(flags.size() * sizeof(std::int16_t), sizeof(Changed));
    for (const Member& flag : flags) {
        Changed changed;
        auto& value = *reinterpret_cast<std::int16_t*>(reinterpret_cast<char*>(&changed) + flag.at);
        value = 1;
        EXPECT_TRUE(changed.any()) << flag.owner;
        changed.clearAfterSave();
        EXPECT_EQ(value, &value == &changed.DDLivAnnChanged ? 1 : 0) << flag.owner;
    }
}

} // namespace
