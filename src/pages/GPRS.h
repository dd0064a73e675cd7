#pragma once

#include "pages/PlainPage.h"
#include "pages/parts/BoundFields.h"

namespace ostrel {

/// Where a logger reports to over GPRS, and by FTP. The passwords are hidden until asked for.
class GprsControls {
 public:
  static constexpr PlainTraits kTraits{.page = PageId::GPRS,
                                       .form = "GPRS",
                                       .title = "Configuracion parametros GPRS",
                                       .help = "GPRS"};

  GprsControls(Form& form, PageContext& context);

  void LoadData() { fields_.Load(context_.conf.Gprs); }
  void Save(DeviceConf& conf) const { fields_.Save(conf.Gprs); }
  void CheckNumbers();
  /// Hides the passwords again.
  void Activate() { CheckMostrar.SetChecked(false); }

 private:
  PageContext& context_;
  BoundFields<ConfGprs> fields_;
  CheckBox CheckHabilGPRS, CheckMantener, CheckMostrar;
  Frame FrameAPN;
  Label LabelAPNServer;
  TextBox TextAPNServer;
  Label LabelAPNPassword;
  TextBox TextAPNPassword;
  Label LabelAPNUserName;
  TextBox TextAPNUserName;
  Label LabelAPNRetry;
  TextBox TextAPNRetry;
  Label LabelAPNRetryTime;
  TextBox TextAPNRetryTime;
  Label LabelAPNRetrySeconds;
  Label LabelConTimeOut;
  TextBox TextConTimeOut;
  Label LabelConSeconds;
  Frame FrameGPRS;
  Label LabelIP;
  TextBox IPInputBox;
  Label LabelPort;
  TextBox TextPort;
  Label LabelTimeout;
  TextBox TextTimeout;
  Label LabelTimeoutSeconds;
  Frame FrameFTP;
  Label LabelIP1;
  TextBox IPInputBox1;
  Label LabelRuta;
  TextBox TextRuta;
  Label LabelFTPUser;
  TextBox TextFTPUser;
  Label LabelFTPPass;
  TextBox TextFTPPass;
  Label LabelFTPRetry;
  TextBox TextFTPRetry;
  Label LabelFTPRetryTime;
  TextBox TextFTPRetryTime;
  Label LabelFTPSeconds;
};

using GPRS = PlainPage<GprsControls>;

}  // namespace ostrel
