#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

// The game's memory of what it has asked: one mark for each item, all 0 after a load.
namespace brindor {

// Slot k belongs to event k, slot nevents + k to person k; the last slot, npeople + nevents, to no item. Written by
// the load (cleared), the draw and markused (raised and lowered), and by the editors, which add and remove slots.
extern std::vector<std::int16_t> usedmarks;

// The slot of an item; `isperson` non-zero for a person. A negative item gives the last slot, and so does one whose
// slot would lie behind the table. An event's number above nevents - 1 is not refused: it is a person's slot.
std::size_t usedslot(double isperson, std::int16_t item);

// Gives the table its size for the counters in force, all marks 0.
void clearmarks();

// For a record added (before its counter is raised) or deleted (before its counter is lowered) at index `item`:
// every other item keeps its own mark. `item` must be one of its family; for insertmark it may be the one behind the
// last.
void insertmark(double isperson, std::int16_t item);
void removemark(double isperson, std::int16_t item);

} // namespace brindor
