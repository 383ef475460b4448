#pragma once

#include <functional>

namespace Zel3D {

/// One OpenGL display list.
///
/// The object cannot free its list by itself, because that needs the context in which it was made: the owner
/// makes that context current and calls remove(), or forget() when the context is gone.
class DisplayList
{
public:
    /// Replaces the list by what \a record sends, under the name that it has. Needs a current context.
    void compile(const std::function<void()>& record);
    /// Gives the list a name, by which others can call it before it is compiled. Needs a current context.
    void reserve();
    /// Draws the list; nothing without one. Needs the list's context.
    void call() const;
    /// Frees the list. Needs the list's context.
    void remove();
    /// Drops the name of a list whose context is gone.
    void forget() { id = 0; }
    /// Whether the current context knows the list.
    bool exists() const;

private:
    unsigned int id = 0;
};

} // namespace Zel3D
