#pragma once

#include <span>

#include "blocks/Clearing.h"
#include "blocks/Fields.h"
#include "blocks/GeneralParameters.h"
#include "blocks/LineSection.h"
#include "blocks/PageId.h"
#include "blocks/Receiver.h"
#include "model/DeviceConf.h"
#include "model/Field.h"

namespace ostrel {

class IniClass;

/// One kind of record of a configuration, with all about it that needs no control. Each stands in a
/// unit of its own; this is the form in which tables and orders hold them.
struct Block {
  PageId page;  ///< the page that edits it
  /// Resets what emptying resets.
  void (*clear)(DeviceConf& conf, const TargetProfile& profile, const Translation& translate);
  // Every field that a file holds, in file order.
  void (*visit)(DeviceConf& conf, const TargetProfile& profile, const FieldVisitor& visit);
  void (*view)(const DeviceConf& conf, const TargetProfile& profile, const FieldViewer& view);
  /// Reads the fields of an emptied block from a file.
  void (*restore)(DeviceConf& conf, const TargetProfile& profile, const KeyReader& read);
  /// The alarms that a logger gets to know; null where the block has none.
  void (*alarms)(const DeviceConf& conf, const Receiver& receiver, const AlarmVisitor& visit);
  /// Brings a reading into the form in which it was sent, where a logger reports the same thing in
  /// another; null where both are the same.
  void (*asSent)(DeviceConf& read, const DeviceConf& sent, const Receiver& receiver);
  /// How the lines of its keys are read from a logger.
  std::span<const LineSection> lines;
};

/// All blocks.
std::span<const Block> Blocks();

/// The block that a page edits; null for a page without one.
const Block* FindBlock(PageId page);

/// Writes all fields of a block into an open document. A free telephone slot has no key.
void SaveBlock(const Block& block, const DeviceConf& conf, const TargetProfile& profile,
               IniClass& document);

/// Empties a block, then reads it from a file.
void RestoreBlock(const Block& block, DeviceConf& conf, const TargetProfile& profile,
                  const Translation& translate, const KeyReader& read);

}  // namespace ostrel
