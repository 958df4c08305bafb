#pragma once

#include <memory>

class Lifetime;

/// Tells whether an object that may be deleted by someone else meanwhile still exists. Lives on the stack of a function
/// that calls out and goes on afterwards.
class LifetimeWatch
{
public:
    explicit LifetimeWatch(const Lifetime& lifetime);

    bool IsOver() const { return m_token.expired(); }

private:
    std::weak_ptr<const int> m_token;
};

/// Member of an object that is watched: it ends with the object at the latest.
class Lifetime
{
public:
    Lifetime() = default;
    Lifetime(const Lifetime&) = delete;
    Lifetime& operator=(const Lifetime&) = delete;
    ~Lifetime() = default;

    /// Ends what is watched before the object itself; until it begins again every watch is over.
    void End() { m_token.reset(); }
    /// Begins it anew: who watches what was there before sees no part of it.
    void Begin() { m_token = std::make_shared<const int>(0); }

private:
    friend class LifetimeWatch;

    std::shared_ptr<const int> m_token = std::make_shared<const int>(0);
};

inline LifetimeWatch::LifetimeWatch(const Lifetime& lifetime) : m_token(lifetime.m_token) {}
