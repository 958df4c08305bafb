#pragma once

/// Objects made by a FromHandle function. They live until the thread is idle; those that were handed out before a modal
/// loop began live on while it runs, because the code that waits for the loop may hold them.
class TemporaryObjects
{
public:
    TemporaryObjects();
    TemporaryObjects(const TemporaryObjects&) = delete;
    TemporaryObjects& operator=(const TemporaryObjects&) = delete;

    /// Called when the thread is idle.
    static void DeleteUnused();

    /// A modal loop runs during the life of this.
    class ModalScope
    {
    public:
        ModalScope();
        ~ModalScope();
        ModalScope(const ModalScope&) = delete;
        ModalScope& operator=(const ModalScope&) = delete;
    };

protected:
    ~TemporaryObjects() = default;

    static int Depth();
    virtual void DeleteFromDepth(int depth) = 0;
};
