#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

// The game's memory of what it has asked: one mark for each item, all 0 after a load.
namespace brindor {

// Slot k belongs to event k, slot nevents + k to person k; the last slot, npeople + nevents, to no item. Written by
// the load (cleared), the draw and markused (raised and lowered), and by the editors, which add and remove slots.
extern std::vector<std::int16_t> usedmarks;

// The slot of an item; `isperson` non-zero for a person. An item outside its family gives the last slot.
std::size_t usedslot(double isperson, std::int16_t item);

// Adds `delta` to a mark; it never leaves 16 bits.
void raisemark(std::size_t slot, std::int16_t delta);

// Gives the table its size for the counters in force, all marks 0.
void clearmarks();

// For a record added (before its counter is raised) or deleted (before its counter is lowered) at index `item`:
// every other item keeps its own mark.
void insertmark(double isperson, std::int16_t item);
void removemark(double isperson, std::int16_t item);

} // namespace brindor
