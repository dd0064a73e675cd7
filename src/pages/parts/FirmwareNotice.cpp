#include "pages/parts/FirmwareNotice.h"

namespace ostrel {

FirmwareNotice::FirmwareNotice(Form& form, const PageContext& context, Feature feature,
                               std::string_view sentence)
    : context_(context),
      feature_(feature),
      sentence_(sentence),
      Warning(form, "Warning"),
      WarningText(form, "WarningText") {
  Update();
}

bool FirmwareNotice::Update() {
  const bool warns = context_.Connected && !Has(context_.info.Features, feature_);
  if (warns)
    WarningText.face.SetCaption(context_.Translate("La version de firmware del") + " " +
                                context_.profile.TargetName + " " + context_.Translate(sentence_));
  Warning.face.SetVisible(warns);
  WarningText.face.SetVisible(warns);
  return warns;
}

}  // namespace ostrel
