#pragma once

// Stores a wrapper in the block's slot of its kind.
template <class M>
struct SlotOf;
template <class Block, class W>
struct SlotOf<W * Block::*> {
    using BlockType = Block;
    using Wrapper = W;
};

// The wrapper in the slot Slot of the block when it is of the slot's kind;
// false, the block untouched, when it is of another kind.
template <auto Slot, class Base>
bool installAs(typename SlotOf<decltype(Slot)>::BlockType &block, Base *wrapper) {
    auto *w = dynamic_cast<typename SlotOf<decltype(Slot)>::Wrapper *>(wrapper);
    if (w) block.*Slot = w;
    return w != nullptr;
}
