#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "controls/Form.h"
#include "link/Wire.h"
#include "model/Field.h"

namespace ostrel {

class IniClass;

/// A page: logic over named fields of the model and named controls of its form. It edits its part
/// of the model, and knows how that part travels on the wire and stands in the file.
class Page {
 public:
  virtual ~Page() = default;

  virtual Form& GetForm() = 0;
  /// Sets every caption and the title in the language in use.
  virtual void LoadText() = 0;
  /// Commits the controls, then shows another channel.
  virtual void ChangeIndex(std::int16_t index) = 0;
  /// Resets the page's part of the model, then shows it.
  virtual void Clear() = 0;
  /// Shows the model in the controls.
  virtual void LoadData() = 0;
  /// Writes the page's keys into an open document.
  virtual void SaveConf(IniClass& document) = 0;
  /// Clears, then reads the page's keys from the file at `ConfFilePath`, then shows them.
  virtual void RestoreConf() = 0;
  /// Commits the controls to the model.
  virtual void SavePage() = 0;

  virtual void Form_Load() = 0;
  virtual void Form_Activate() = 0;
  virtual void Form_Deactivate() = 0;

  /// Visits every field of the page's part of a model that a file holds, in file order.
  virtual void VisitFields(DeviceConf& conf, const FieldVisitor& visit) const = 0;
  /// How the lines of the page's keys are read from a logger.
  virtual std::vector<WireSection> WireSections() = 0;
  /// The page's blocks of an upload, by the names under which the order of sending knows them.
  virtual std::vector<WireBlock> WireBlocks() = 0;
};

}  // namespace ostrel
