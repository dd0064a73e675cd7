#include "pages/PageBlock.h"

#include <stdexcept>

#include "blocks/Blocks.h"
#include "pages/PageContext.h"

namespace ostrel {
namespace {

/// A page of the contract has a block; that it has none is a broken invariant.
const Block& BlockOf(PageId page) {
  const Block* block = FindBlock(page);
  if (!block) throw std::logic_error("a page without a block");
  return *block;
}

}  // namespace

void ClearBlock(const PageContext& context, PageId page) {
  BlockOf(page).clear(context.conf, context.profile,
                      [&](std::string_view text) { return context.Translate(text); });
}

void SaveBlock(const PageContext& context, PageId page, IniClass& document) {
  ostrel::SaveBlock(BlockOf(page), context.conf, context.profile, document);
}

void ReadBlockKeys(const PageContext& context, PageId page) {
  BlockOf(page).restore(context.conf, context.profile,
                        [&](const std::string& section, const std::string& key) {
                          return context.ConfReadKey(section, key);
                        });
}

}  // namespace ostrel
