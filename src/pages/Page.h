#pragma once

#include <cstdint>

#include "blocks/PageId.h"
#include "controls/Form.h"

namespace ostrel {

class IniClass;
struct DeviceConf;

/// A page: logic over named fields of the model and named controls of its form. What its part of
/// the model is on the wire and in the file stands with its block.
class Page {
 public:
  virtual ~Page() = default;

  virtual PageId Id() const = 0;
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
  /// What `SavePage` would leave in a model, put into another one; nothing else changes.
  virtual void SaveInto(DeviceConf& conf) const = 0;

  virtual void Form_Load() = 0;
  virtual void Form_Activate() = 0;
  virtual void Form_Deactivate() = 0;
};

}  // namespace ostrel
