#pragma once

#include <utility>

#include "base/exceptions.h"
#include "base/object.h"

/// Elements in a chain that can be walked both ways. ARG_TYPE is how elements are handed in.
///
/// A POSITION names an element until that element is removed; inserting and removing others doesn't touch it. Reading,
/// setting or removing at a null POSITION, and reading or removing an end of an empty list, raises
/// CInvalidArgException.
template <class TYPE, class ARG_TYPE = const TYPE&>
class CList : public CObject
{
public:
    CList() = default;
    ~CList() override { RemoveAll(); }

    // size
    INT_PTR GetCount() const { return m_count; }
    INT_PTR GetSize() const { return m_count; }
    BOOL IsEmpty() const { return m_count == 0; }

    // ends
    TYPE& GetHead() { return Checked(m_head)->element; }
    const TYPE& GetHead() const { return Checked(m_head)->element; }
    TYPE& GetTail() { return Checked(m_tail)->element; }
    const TYPE& GetTail() const { return Checked(m_tail)->element; }
    POSITION AddHead(ARG_TYPE element) { return Link(nullptr, element, m_head); }
    POSITION AddTail(ARG_TYPE element) { return Link(m_tail, element, nullptr); }
    /// Puts copies of all elements of another list, in its order, before or behind the present ones.
    void AddHead(const CList* other)
    {
        const Node* const formerTail = Required(other).m_tail;
        Node* const formerHead = m_head;
        for (const Node* source = other->m_head; source != nullptr;
             source = source == formerTail ? nullptr : source->next)
            Link(formerHead != nullptr ? formerHead->previous : m_tail, source->element, formerHead);
    }
    void AddTail(const CList* other)
    {
        const Node* const last = Required(other).m_tail;
        for (const Node* source = other->m_head; source != nullptr; source = source == last ? nullptr : source->next)
            Link(m_tail, source->element, nullptr);
    }
    TYPE RemoveHead() { return Unlink(Checked(m_head)); }
    TYPE RemoveTail() { return Unlink(Checked(m_tail)); }
    void RemoveAll()
    {
        for (Node* node = std::exchange(m_head, nullptr); node != nullptr;)
            delete std::exchange(node, node->next);
        m_tail = nullptr;
        m_count = 0;
    }

    // walking; the null POSITION is the end
    POSITION GetHeadPosition() const { return PositionOf(m_head); }
    POSITION GetTailPosition() const { return PositionOf(m_tail); }
    /// The element there; moves the POSITION on before it returns, so the element may be removed afterwards.
    TYPE& GetNext(POSITION& position) { return Step(position, &Node::next)->element; }
    const TYPE& GetNext(POSITION& position) const { return Step(position, &Node::next)->element; }
    TYPE& GetPrev(POSITION& position) { return Step(position, &Node::previous)->element; }
    const TYPE& GetPrev(POSITION& position) const { return Step(position, &Node::previous)->element; }

    // at a POSITION
    TYPE& GetAt(POSITION position) { return Checked(NodeAt(position))->element; }
    const TYPE& GetAt(POSITION position) const { return Checked(NodeAt(position))->element; }
    void SetAt(POSITION position, ARG_TYPE element) { Checked(NodeAt(position))->element = element; }
    void RemoveAt(POSITION position) { Unlink(Checked(NodeAt(position))); }
    /// Before the null POSITION is before the head, after it is behind the tail.
    POSITION InsertBefore(POSITION position, ARG_TYPE element)
    {
        Node* const next = position != nullptr ? NodeAt(position) : m_head;
        return Link(next != nullptr ? next->previous : m_tail, element, next);
    }
    POSITION InsertAfter(POSITION position, ARG_TYPE element)
    {
        Node* const previous = position != nullptr ? NodeAt(position) : m_tail;
        return Link(previous, element, previous != nullptr ? previous->next : m_head);
    }

    // searching; null when there is none
    /// The first element equal to the value, from the head or from behind `startAfter`.
    POSITION Find(ARG_TYPE value, POSITION startAfter = nullptr) const
    {
        Node* node = startAfter != nullptr ? NodeAt(startAfter)->next : m_head;
        while (node != nullptr && !(node->element == value))
            node = node->next;
        return PositionOf(node);
    }
    POSITION FindIndex(INT_PTR index) const
    {
        if (index < 0 || index >= m_count)
            return nullptr;
        Node* node = m_head;
        for (INT_PTR passed = 0; passed < index; ++passed)
            node = node->next;
        return PositionOf(node);
    }

private:
    struct Node
    {
        Node* previous;
        Node* next;
        TYPE element;
    };

    static Node* NodeAt(POSITION position) { return reinterpret_cast<Node*>(position); }
    static POSITION PositionOf(Node* node) { return reinterpret_cast<POSITION>(node); }

    static Node* Checked(Node* node)
    {
        if (node == nullptr)
            AfxThrowInvalidArgException();
        return node;
    }

    static const CList& Required(const CList* other)
    {
        if (other == nullptr)
            AfxThrowInvalidArgException();
        return *other;
    }

    static Node* Step(POSITION& position, Node* Node::*direction)
    {
        Node* const node = Checked(NodeAt(position));
        position = PositionOf(node->*direction);
        return node;
    }

    POSITION Link(Node* previous, ARG_TYPE element, Node* next)
    {
        Node* const node = new Node{previous, next, TYPE(element)};
        (previous != nullptr ? previous->next : m_head) = node;
        (next != nullptr ? next->previous : m_tail) = node;
        ++m_count;
        return PositionOf(node);
    }

    TYPE Unlink(Node* node)
    {
        (node->previous != nullptr ? node->previous->next : m_head) = node->next;
        (node->next != nullptr ? node->next->previous : m_tail) = node->previous;
        --m_count;
        TYPE element = std::move(node->element);
        delete node;
        return element;
    }

    Node* m_head = nullptr;
    Node* m_tail = nullptr;
    INT_PTR m_count = 0;
};
