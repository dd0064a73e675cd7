#pragma once

#include "blocks/PageId.h"

namespace ostrel {

class IniClass;
struct PageContext;

// The operations of the page contract that need no control: each works on the block of a page.

/// Resets what emptying resets.
void ClearBlock(const PageContext& context, PageId page);
/// Writes the keys of the block into an open document.
void SaveBlock(const PageContext& context, PageId page, IniClass& document);
/// Reads the keys of a block from the file at `ConfFilePath`; emptying it before is the caller's.
void ReadBlockKeys(const PageContext& context, PageId page);

}  // namespace ostrel
