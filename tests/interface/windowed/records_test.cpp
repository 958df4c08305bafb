#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include "interface/dim_link.h"
#include "interface/dim_params.h"
#include "interface/variable_params.h"

namespace
{

template <typename Record>
class Layout
{
public:
    /// Adds the place of a field of that type; fields are added in the order that the contract gives.
    template <typename Type, typename Field>
    Layout& Has(Field Record::*field)
    {
        EXPECT_TRUE((std::is_same_v<Field, Type>)) << "type of field " << m_offsets.size();
        const auto* const begin = reinterpret_cast<const std::byte*>(&m_record);
        m_offsets.push_back(reinterpret_cast<const std::byte*>(&(m_record.*field)) - begin);
        m_expected.push_back(Aligned(m_end, alignof(Field)));
        m_end = m_expected.back() + static_cast<std::ptrdiff_t>(sizeof(Field));
        return *this;
    }

    /// Each field begins where the one before it ends, but for what its alignment takes: there is no other between.
    void ExpectNothingBetween() const { EXPECT_EQ(m_offsets, m_expected); }

    /// No room is left behind the last field but for what alignment takes.
    void ExpectNothingBehind() const
    {
        EXPECT_EQ(static_cast<std::ptrdiff_t>(sizeof(Record)), Aligned(m_end, alignof(Record)));
    }

private:
    static std::ptrdiff_t Aligned(std::ptrdiff_t offset, std::size_t alignment)
    {
        const auto step = static_cast<std::ptrdiff_t>(alignment);
        return (offset + step - 1) / step * step;
    }

    Record m_record{};
    std::vector<std::ptrdiff_t> m_offsets;
    std::vector<std::ptrdiff_t> m_expected;
    std::ptrdiff_t m_end = 0;
};

Layout<CDimParams> DimParamsLayout()
{
    Layout<CDimParams> layout;
    layout.Has<CString>(&CDimParams::tolField)
        .Has<CString>(&CDimParams::nominal)
        .Has<CString>(&CDimParams::name)
        .Has<CString>(&CDimParams::upperDev)
        .Has<CString>(&CDimParams::lowerDev)
        .Has<CString>(&CDimParams::caption)
        .Has<std::int32_t>(&CDimParams::weightFixed)
        .Has<std::int32_t>(&CDimParams::increasing)
        .Has<std::int32_t>(&CDimParams::dimKind);
    return layout;
}

Layout<CVariableParams> VariableParamsLayout()
{
    Layout<CVariableParams> layout;
    layout.Has<CString>(&CVariableParams::nominal)
        .Has<CString>(&CVariableParams::name)
        .Has<CString>(&CVariableParams::caption)
        .Has<CString>(&CVariableParams::upperDev)
        .Has<CString>(&CVariableParams::lowerDev)
        .Has<std::int32_t>(&CVariableParams::dimKind)
        .Has<std::int32_t>(&CVariableParams::law)
        .Has<double>(&CVariableParams::mean);
    return layout;
}

Layout<CDimLink> DimLinkLayout()
{
    Layout<CDimLink> layout;
    layout.Has<void*>(&CDimLink::hostObject)
        .Has<std::int32_t>(&CDimLink::weight)
        .Has<std::int32_t>(&CDimLink::increasing)
        .Has<double>(&CDimLink::mean)
        .Has<std::int32_t>(&CDimLink::law);
    return layout;
}

TEST(Records, DimensionHasItsFieldsInOrder)
{
    const auto layout = DimParamsLayout();
    layout.ExpectNothingBetween();
    layout.ExpectNothingBehind();
}

TEST(Records, DistributionHasItsFieldsInOrder)
{
    const auto layout = VariableParamsLayout();
    layout.ExpectNothingBetween();
    layout.ExpectNothingBehind();
}

TEST(Records, LinkHasItsFieldsInOrder)
{
    const auto layout = DimLinkLayout();
    layout.ExpectNothingBetween();
    layout.ExpectNothingBehind();
}

TEST(Records, AreEmptyToBeginWith)
{
    const CDimParams dimension;
    EXPECT_TRUE(dimension.tolField.IsEmpty() && dimension.nominal.IsEmpty() && dimension.name.IsEmpty());
    EXPECT_TRUE(dimension.upperDev.IsEmpty() && dimension.lowerDev.IsEmpty() && dimension.caption.IsEmpty());
    EXPECT_EQ(dimension.weightFixed, 0);
    EXPECT_EQ(dimension.increasing, 0);
    EXPECT_EQ(dimension.dimKind, 0);

    const CVariableParams distribution;
    EXPECT_TRUE(distribution.nominal.IsEmpty() && distribution.name.IsEmpty() && distribution.caption.IsEmpty());
    EXPECT_TRUE(distribution.upperDev.IsEmpty() && distribution.lowerDev.IsEmpty());
    EXPECT_EQ(distribution.dimKind, 0);
    EXPECT_EQ(distribution.law, 0);
    EXPECT_EQ(distribution.mean, 0.0);
}

}  // namespace
