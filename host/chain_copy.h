#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

/// One link as the host handed it to the module, UTF-8 texts; of the closing link the direction means nothing.
struct CopiedLink
{
    std::string name;
    std::string nominal;
    std::string field;
    std::string upperDev;
    std::string lowerDev;
    std::int32_t kind = 0;
    std::int32_t increasing = 0;
    std::int32_t law = 0;
    double mean = 0.0;

    bool operator==(const CopiedLink&) const = default;
};

/// A link of the module's chain: the host's object and, where the host can be sure of it, the copy of its values.
struct FollowedLink
{
    const void* object = nullptr;
    std::optional<CopiedLink> values;
};

/// The host's own copy of the chain that the module keeps.
///
/// The module hands back objects, never values, and tells of no deletion. So the copy follows the list of objects that
/// the module gives: links only disappear from it and come at its end. Where that leaves more than one reading, as when
/// one of two links of the same dimension is gone, the values count as unknown rather than guessed.
class ChainCopy
{
public:
    /// Takes over what the module lists now: the objects of its links in order, and that of its closing link or null.
    void Follow(std::span<const void* const> objects, const void* closingObject);

    /// The link that the host added last, at the end of the list, after it was followed.
    void SetLastLink(const CopiedLink& values);
    void SetClosing(const void* object, const CopiedLink& values);
    void SetLink(std::size_t index, const std::optional<CopiedLink>& values) { m_links.at(index).values = values; }
    /// No value of any link is sure any more.
    void ForgetLinks();
    void Clear();

    const std::vector<FollowedLink>& Links() const { return m_links; }
    const std::optional<FollowedLink>& Closing() const { return m_closing; }

    /// The chain in lines, and what each method computes of it if all values are known and there are two links or more:
    ///
    ///     link NAME NOMINAL UPPER LOWER increasing|decreasing LAW
    ///     closing NOMINAL UPPER LOWER LAW
    ///     analytic A0=.. upper=.. lower=.. ES0=.. EI0=..
    ///     probabilistic A0=.. upper=.. lower=.. ES0=.. EI0=.. D0=.. T=..
    ///
    /// Unknown values give "link NAME unknown" and "closing unknown", a missing closing link "closing none".
    /// @param nameOf  what the host calls an object
    std::vector<std::string> Lines(const std::function<std::string(const void*)>& nameOf) const;

private:
    std::vector<FollowedLink> m_links;
    std::optional<FollowedLink> m_closing;
};
