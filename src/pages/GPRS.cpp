#include "pages/GPRS.h"

namespace ostrel {

GprsControls::GprsControls(Form& form, PageContext& context)
    : context_(context),
      CheckHabilGPRS(form, "CheckHabilGPRS", "Habilitar comunicacion GPRS"),
      CheckMantener(form, "CheckMantener", "Mantener la conexion permanentemente"),
      CheckMostrar(form, "CheckMostrar", "Mostrar las contraseñas"),
      FrameAPN(form, "FrameAPN", "Parametros de la APN"),
      LabelAPNServer(form, "LabelAPNServer", "APN Server:"),
      TextAPNServer(form, "TextAPNServer"),
      LabelAPNPassword(form, "LabelAPNPassword", "APN Password:"),
      TextAPNPassword(form, "TextAPNPassword"),
      LabelAPNUserName(form, "LabelAPNUserName", "APN User Name:"),
      TextAPNUserName(form, "TextAPNUserName"),
      LabelAPNRetry(form, "LabelAPNRetry", "Reintentos de conexion:"),
      TextAPNRetry(form, "TextAPNRetry"),
      LabelAPNRetryTime(form, "LabelAPNRetryTime", "Tiempo entre reintentos:"),
      TextAPNRetryTime(form, "TextAPNRetryTime"),
      LabelAPNRetrySeconds(form, "LabelAPNRetrySeconds", "Segundos"),
      LabelConTimeOut(form, "LabelConTimeOut", "Timeout desconexion:"),
      TextConTimeOut(form, "TextConTimeOut"),
      LabelConSeconds(form, "LabelConSeconds", "Segundos"),
      FrameGPRS(form, "FrameGPRS", "Parametros GPRS"),
      LabelIP(form, "LabelIP", "Direccion IP del servidor:"),
      IPInputBox(form, "IPInputBox"),
      LabelPort(form, "LabelPort", "Puerto:"),
      TextPort(form, "TextPort"),
      LabelTimeout(form, "LabelTimeout", "Timeout:"),
      TextTimeout(form, "TextTimeout"),
      LabelTimeoutSeconds(form, "LabelTimeoutSeconds", "Segundos"),
      FrameFTP(form, "FrameFTP", "Parametros FTP"),
      LabelIP1(form, "LabelIP1", "Direccion IP del servidor:"),
      IPInputBox1(form, "IPInputBox1"),
      LabelRuta(form, "LabelRuta", "Ruta:"),
      TextRuta(form, "TextRuta"),
      LabelFTPUser(form, "LabelFTPUser", "Usuario:"),
      TextFTPUser(form, "TextFTPUser"),
      LabelFTPPass(form, "LabelFTPPass", "Contraseña:"),
      TextFTPPass(form, "TextFTPPass"),
      LabelFTPRetry(form, "LabelFTPRetry", "Reintentos de conexion:"),
      TextFTPRetry(form, "TextFTPRetry"),
      LabelFTPRetryTime(form, "LabelFTPRetryTime", "Tiempo entre reintentos:"),
      TextFTPRetryTime(form, "TextFTPRetryTime"),
      LabelFTPSeconds(form, "LabelFTPSeconds", "Segundos") {
  fields_.Bind(CheckHabilGPRS, &ConfGprs::ENABLED);
  fields_.Bind(CheckMantener, &ConfGprs::ALWAYS_CON);
  fields_.Bind(TextAPNServer, &ConfGprs::APN_SERVER);
  fields_.Bind(TextAPNPassword, &ConfGprs::APN_PASS);
  fields_.Bind(TextAPNUserName, &ConfGprs::APN_USER);
  fields_.Bind(IPInputBox, &ConfGprs::SERVER_IP);
  fields_.Bind(IPInputBox1, &ConfGprs::FTP_IP);
  fields_.Bind(TextRuta, &ConfGprs::FTP_PATH);
  fields_.Bind(TextFTPUser, &ConfGprs::FTP_USER);
  fields_.Bind(TextFTPPass, &ConfGprs::FTP_PASS);
  const auto bindNumber = [this](TextBox& box, auto member) {
    fields_.Bind(box, member, NumberForm::Num, kInt);
  };
  bindNumber(TextAPNRetry, &ConfGprs::APN_RETRIES);
  bindNumber(TextAPNRetryTime, &ConfGprs::APN_RETIME);
  bindNumber(TextConTimeOut, &ConfGprs::APN_TIMEOUT);
  bindNumber(TextPort, &ConfGprs::SERVER_PORT);
  bindNumber(TextTimeout, &ConfGprs::SERVER_TIMEOUT);
  bindNumber(TextFTPRetry, &ConfGprs::FTP_RETRIES);
  bindNumber(TextFTPRetryTime, &ConfGprs::FTP_RETIME);
  for (TextBox* box : {&IPInputBox, &IPInputBox1}) box->SetNumberKind(kAddressKind);
  CheckMostrar.OnClick = [this] {
    for (TextBox* box : {&TextAPNPassword, &TextFTPPass}) box->SetHidden(!CheckMostrar.Checked());
  };
  CheckMostrar.OnClick();
}

void GprsControls::CheckNumbers() {
  fields_.CheckNumbers();
  for (TextBox* box : {&IPInputBox, &IPInputBox1}) CheckNumberBox(*box, kAddressKind);
}

}  // namespace ostrel
