<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Words</name>
    <message>
        <source>%1 holds what this program does not write and would lose: %2. Replace it?</source>
        <translation>%1 contiene datos que este programa no escribe y que se perderían: %2. ¿Reemplazarlo?</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>Alarma</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>Texto:</translation>
    </message>
    <message>
        <source>Notification</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Validity</source>
        <translation>Validez</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Acciones</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Entrada</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>Unit:</source>
        <translation>Unidad:</translation>
    </message>
    <message>
        <source>Power group:</source>
        <translation>Grupo de alimentación:</translation>
    </message>
    <message>
        <source>Interface</source>
        <translation>Interfaz</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Escala</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Señal</translation>
    </message>
    <message>
        <source>Value in units</source>
        <translation>Valor en unidades</translation>
    </message>
    <message>
        <source>Value at the start of scale</source>
        <translation>Valor al inicio de escala</translation>
    </message>
    <message>
        <source>Value at full scale</source>
        <translation>Valor a fondo de escala</translation>
    </message>
    <message>
        <source>Minimum:</source>
        <translation>Mínimo:</translation>
    </message>
    <message>
        <source>Maximum:</source>
        <translation>Máximo:</translation>
    </message>
    <message>
        <source>Hysteresis:</source>
        <translation>Histéresis:</translation>
    </message>
    <message>
        <source>Persistence:</source>
        <translation>Persistencia:</translation>
    </message>
    <message>
        <source>This is not a number of the kind expected here.</source>
        <translation>No es un número del tipo que aquí se espera.</translation>
    </message>
    <message>
        <source>This number does not fit here.</source>
        <translation>Este número no cabe aquí.</translation>
    </message>
    <message>
        <source>%1 is kept.</source>
        <translation>Se guarda %1.</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Sección</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Campo</translation>
    </message>
    <message>
        <source>Present</source>
        <translation>Actual</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>En el archivo</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Diferencias</translation>
    </message>
    <message>
        <source>Comparison with %1</source>
        <translation>Comparación con %1</translation>
    </message>
    <message>
        <source>The present configuration and the file hold the same.</source>
        <translation>La configuración actual y el archivo son iguales.</translation>
    </message>
    <message>
        <source>&amp;Leave</source>
        <translation>&amp;Salir</translation>
    </message>
    <message numerus="yes">
        <source>The file cannot keep %n text(s) as they are, the first of them %1 in %2: &quot;%3&quot; reads back as &quot;%4&quot;.</source>
        <translation><numerusform>El archivo no puede guardar un texto tal como está, %1 en %2: &quot;%3&quot; se lee como &quot;%4&quot;.</numerusform><numerusform>El archivo no puede guardar %n textos tal como están, el primero %1 en %2: &quot;%3&quot; se lee como &quot;%4&quot;.</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n field(s) differ.</source>
        <translation><numerusform>Un campo es distinto.</numerusform><numerusform>%n campos son distintos.</numerusform></translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>The program met an internal error and goes on: %1</source>
        <translation>El programa ha encontrado un error interno y continúa: %1</translation>
    </message>
    <message>
        <source>Contact at rest:</source>
        <translation>Contacto en reposo:</translation>
    </message>
    <message>
        <source>there is no port %1</source>
        <translation>no existe el puerto %1</translation>
    </message>
    <message>
        <source>check that the adapter is plugged in</source>
        <translation>compruebe que el adaptador está conectado</translation>
    </message>
    <message>
        <source>%1 is in use by another program</source>
        <translation>otro programa está usando %1</translation>
    </message>
    <message>
        <source>close that program and try again</source>
        <translation>ciérrelo e inténtelo de nuevo</translation>
    </message>
    <message>
        <source>there is no permission to open %1</source>
        <translation>no hay permiso para abrir %1</translation>
    </message>
    <message>
        <source>join the group of serial devices with &quot;sudo usermod -aG dialout $USER&quot;, then log out and in again</source>
        <translation>únase al grupo de los dispositivos serie con &quot;sudo usermod -aG dialout $USER&quot;, cierre la sesión y vuelva a entrar</translation>
    </message>
    <message>
        <source>%1 cannot be opened as a serial port</source>
        <translation>%1 no se puede abrir como puerto serie</translation>
    </message>
    <message>
        <source>no modem answers at %1</source>
        <translation>no responde ningún módem en %1</translation>
    </message>
    <message>
        <source>the call was not answered</source>
        <translation>nadie ha contestado a la llamada</translation>
    </message>
    <message>
        <source>the call failed: the modem says &quot;%1&quot;</source>
        <translation>la llamada ha fallado: el módem dice &quot;%1&quot;</translation>
    </message>
    <message>
        <source>no logger answers at %1</source>
        <translation>ningún equipo responde en %1</translation>
    </message>
    <message>
        <source>check cable and supply</source>
        <translation>compruebe el cable y la alimentación</translation>
    </message>
    <message>
        <source>the logger wants an access code</source>
        <translation>el equipo pide una clave de acceso</translation>
    </message>
    <message>
        <source>the logger did not accept the access code</source>
        <translation>el equipo no ha aceptado la clave de acceso</translation>
    </message>
    <message>
        <source>the logger fell silent</source>
        <translation>el equipo dejó de responder</translation>
    </message>
    <message>
        <source>the logger fell silent at record %1</source>
        <translation>el equipo dejó de responder en el registro %1</translation>
    </message>
    <message>
        <source>the logger fell silent at statement %1</source>
        <translation>el equipo dejó de responder en la sentencia %1</translation>
    </message>
    <message>
        <source>lines arrived damaged</source>
        <translation>llegaron líneas dañadas</translation>
    </message>
    <message>
        <source>lines arrived damaged at record %1</source>
        <translation>llegaron líneas dañadas en el registro %1</translation>
    </message>
    <message>
        <source>lines arrived damaged at statement %1</source>
        <translation>llegaron líneas dañadas en la sentencia %1</translation>
    </message>
    <message>
        <source>check cable and earthing</source>
        <translation>compruebe el cable y la toma de tierra</translation>
    </message>
    <message>
        <source>record %1 was expected and &quot;%2&quot; arrived</source>
        <translation>se esperaba el registro %1 y llegó &quot;%2&quot;</translation>
    </message>
    <message>
        <source>the logger sent an empty configuration</source>
        <translation>el equipo envió una configuración vacía</translation>
    </message>
    <message>
        <source>record %1 is about a channel that does not exist: &quot;%2&quot;</source>
        <translation>el registro %1 es de un canal que no existe: &quot;%2&quot;</translation>
    </message>
    <message>
        <source>the logger refused statement %1: &quot;%2&quot;</source>
        <translation>el equipo rechazó la sentencia %1: &quot;%2&quot;</translation>
    </message>
    <message>
        <source>the logger refused the setting: &quot;%1&quot;</source>
        <translation>el equipo rechazó el ajuste: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the logger did not say that it took the configuration over</source>
        <translation>el equipo no ha confirmado que acepta la configuración</translation>
    </message>
    <message>
        <source>the logger did not take the configuration over: &quot;%1&quot;</source>
        <translation>el equipo no ha aceptado la configuración: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the logger answered something else: &quot;%1&quot;</source>
        <translation>el equipo ha respondido otra cosa: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>another dialogue with the logger is under way</source>
        <translation>hay otro diálogo con el equipo en curso</translation>
    </message>
    <message>
        <source>the logger came to no end</source>
        <translation>el equipo no llegó al final</translation>
    </message>
    <message>
        <source>the logger came to no end at record %1</source>
        <translation>el equipo no llegó al final en el registro %1</translation>
    </message>
    <message>
        <source>the logger came to no end at statement %1</source>
        <translation>el equipo no llegó al final en la sentencia %1</translation>
    </message>
    <message>
        <source>a text with a control character cannot be sent</source>
        <translation>no se puede enviar un texto con un carácter de control</translation>
    </message>
    <message>
        <source>statement %1 holds a control character and cannot be sent</source>
        <translation>la sentencia %1 contiene un carácter de control y no se puede enviar</translation>
    </message>
    <message>
        <source>type that text anew</source>
        <translation>escriba de nuevo ese texto</translation>
    </message>
    <message>
        <source>the line at %1 was held</source>
        <translation>la línea de %1 estaba retenida</translation>
    </message>
    <message>
        <source>check that the logger is switched on and that the cable has RTS and CTS</source>
        <translation>compruebe que el equipo está encendido y que el cable tiene RTS y CTS</translation>
    </message>
    <message>
        <source>%1 has gone in the middle of the dialogue</source>
        <translation>%1 ha desaparecido en mitad del diálogo</translation>
    </message>
    <message>
        <source>%1 was closed in the middle of the dialogue</source>
        <translation>%1 se cerró en mitad del diálogo</translation>
    </message>
    <message>
        <source>the logger did not answer, or not as expected</source>
        <translation>el equipo no respondió, o no como se esperaba</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>interrumpido</translation>
    </message>
    <message>
        <source>interrupted before a session stood</source>
        <translation>interrumpido antes de abrir la sesión</translation>
    </message>
    <message>
        <source>the logger's configuration is unchanged</source>
        <translation>la configuración del equipo no ha cambiado</translation>
    </message>
    <message>
        <source>the logger's voice-call list may be erased or incomplete: write it again</source>
        <translation>la lista de llamadas de voz del equipo puede estar borrada o incompleta: vuelva a escribirla</translation>
    </message>
    <message>
        <source>the logger's former configuration stays in force</source>
        <translation>sigue en vigor la configuración anterior del equipo</translation>
    </message>
    <message>
        <source>whether the logger has taken the configuration over is not known: read it back</source>
        <translation>no se sabe si el equipo ha aceptado la configuración: vuelva a leerla</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sesión</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>Puerto:</translation>
    </message>
    <message>
        <source>Search ports</source>
        <translation>Buscar puertos</translation>
    </message>
    <message>
        <source>By modem</source>
        <translation>Por módem</translation>
    </message>
    <message>
        <source>Number to call</source>
        <translation>Número al que llamar</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Leer</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Escribir</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Device information</source>
        <translation>Información del equipo</translation>
    </message>
    <message>
        <source>Firmware:</source>
        <translation>Firmware:</translation>
    </message>
    <message>
        <source>Serial number:</source>
        <translation>Número de serie:</translation>
    </message>
    <message>
        <source>Battery:</source>
        <translation>Batería:</translation>
    </message>
    <message>
        <source>Log depth:</source>
        <translation>Capacidad:</translation>
    </message>
    <message>
        <source>Log in use:</source>
        <translation>En uso:</translation>
    </message>
    <message>
        <source>Signal:</source>
        <translation>Cobertura:</translation>
    </message>
    <message>
        <source>Logger</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>Own number:</source>
        <translation>Número propio:</translation>
    </message>
    <message>
        <source>SMS centre:</source>
        <translation>Centro SMS:</translation>
    </message>
    <message>
        <source>SMS centre</source>
        <translation>Centro SMS</translation>
    </message>
    <message>
        <source>Restoration text:</source>
        <translation>Texto restauración:</translation>
    </message>
    <message>
        <source>Resend every:</source>
        <translation>Reenviar cada:</translation>
    </message>
    <message>
        <source>minutes</source>
        <translation>minutos</translation>
    </message>
    <message>
        <source>At most:</source>
        <translation>Máximo:</translation>
    </message>
    <message>
        <source>times</source>
        <translation>veces</translation>
    </message>
    <message>
        <source>Authorised telephones</source>
        <translation>Teléfonos autorizados</translation>
    </message>
    <message>
        <source>Number:</source>
        <translation>Número:</translation>
    </message>
    <message>
        <source>Priority:</source>
        <translation>Prioridad:</translation>
    </message>
    <message>
        <source>Privilege:</source>
        <translation>Privilegio:</translation>
    </message>
    <message>
        <source>Channels of the mask</source>
        <translation>Canales de la máscara</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Output:</source>
        <translation>Salida:</translation>
    </message>
    <message>
        <source>Excitation (V):</source>
        <translation>Excitación (V):</translation>
    </message>
    <message>
        <source>Activation (1/100 s):</source>
        <translation>Activación (1/100 s):</translation>
    </message>
    <message>
        <source>This installation has no help pages.</source>
        <translation>Esta instalación no tiene páginas de ayuda.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Idioma:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>quedan %1</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Sin sesión</translation>
    </message>
    <message>
        <source>Detecting</source>
        <translation>Detectando</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Leyendo</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Escribiendo</translation>
    </message>
    <message>
        <source>%1, a transfer waits for a session</source>
        <translation>%1, una transferencia espera a que se abra la sesión</translation>
    </message>
    <message>
        <source>%1, a transfer waits for the general page</source>
        <translation>%1, una transferencia espera a la página general</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>Cerrando</translation>
    </message>
    <message>
        <source>%1, silent for %2 s</source>
        <translation>%1, sin respuesta desde hace %2 s</translation>
    </message>
    <message>
        <source>No safety copy could be kept: %1</source>
        <translation>No se ha podido guardar la copia de seguridad: %1</translation>
    </message>
    <message>
        <source>The configuration has changes that are neither saved nor sent.</source>
        <translation>La configuración tiene cambios sin guardar ni enviar.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Go on without saving</source>
        <translation>C&amp;ontinuar sin guardar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Open a configuration file</source>
        <translation>Abrir un archivo de configuración</translation>
    </message>
    <message>
        <source>Save the configuration to a file</source>
        <translation>Guardar la configuración en un archivo</translation>
    </message>
    <message>
        <source>Choose the language</source>
        <translation>Elegir el idioma</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recientes</translation>
    </message>
    <message>
        <source>Files opened or saved lately</source>
        <translation>Archivos abiertos o guardados hace poco</translation>
    </message>
    <message>
        <source>Safety copies</source>
        <translation>Copias de seguridad</translation>
    </message>
    <message>
        <source>Configurations read from loggers or sent to them</source>
        <translation>Configuraciones leídas de equipos o enviadas a ellos</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Comparar</translation>
    </message>
    <message>
        <source>Compare the configuration with a file</source>
        <translation>Comparar la configuración con un archivo</translation>
    </message>
    <message>
        <source>Trace</source>
        <translation>Traza</translation>
    </message>
    <message>
        <source>Show what goes over the line</source>
        <translation>Mostrar lo que pasa por la línea</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>No se ha podido escribir %1: %2</translation>
    </message>
    <message>
        <source>The voice-call list is being written. Leaving breaks that off, and the logger is left without a whole list.</source>
        <translation>Se está escribiendo la lista de llamadas de voz. Al salir se interrumpe, y el equipo queda sin una lista completa.</translation>
    </message>
    <message>
        <source>A transfer is under way. Leaving breaks it off.</source>
        <translation>Hay una transferencia en curso. Al salir se interrumpe.</translation>
    </message>
    <message>
        <source>Changes that are neither saved nor sent are lost.</source>
        <translation>Los cambios que no se han guardado ni enviado se pierden.</translation>
    </message>
    <message>
        <source>No files yet</source>
        <translation>Aún no hay archivos</translation>
    </message>
    <message>
        <source>No copies yet</source>
        <translation>Aún no hay copias</translation>
    </message>
    <message>
        <source>Show the folder</source>
        <translation>Mostrar la carpeta</translation>
    </message>
    <message>
        <source>Configuration files</source>
        <translation>Archivos de configuración</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>The file holds no configuration.</source>
        <translation>El archivo no contiene ninguna configuración.</translation>
    </message>
    <message>
        <source>The file is of another model: %1</source>
        <translation>El archivo es de otro modelo: %1</translation>
    </message>
    <message>
        <source>Jumpers</source>
        <translation>Puentes</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <source>Model:</source>
        <translation>Modelo:</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrar</translation>
    </message>
    <message>
        <source>Filter of the tree</source>
        <translation>Filtro del árbol</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>Mode:</source>
        <translation>Modo:</translation>
    </message>
    <message>
        <source>Register</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Tamaño:</translation>
    </message>
    <message>
        <source>Conversion</source>
        <translation>Conversión</translation>
    </message>
    <message>
        <source>Constant</source>
        <translation>Constante</translation>
    </message>
    <message>
        <source>Bit rate</source>
        <translation>Velocidad en bit/s</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Estado:</translation>
    </message>
    <message>
        <source>Interface:</source>
        <translation>Interfaz:</translation>
    </message>
    <message>
        <source>Flow meter</source>
        <translation>Caudalímetro</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>Time base</source>
        <translation>Base de tiempo</translation>
    </message>
    <message>
        <source>Counter</source>
        <translation>Contador</translation>
    </message>
    <message>
        <source>Totaliser</source>
        <translation>Totalizador</translation>
    </message>
    <message>
        <source>In use</source>
        <translation>En uso</translation>
    </message>
    <message>
        <source>%1 is %2, %3 is %4</source>
        <translation>%1 son %2, %3 son %4</translation>
    </message>
    <message>
        <source>Both signals are the same: there is no scale.</source>
        <translation>Ambas señales son iguales: no hay escala.</translation>
    </message>
    <message>
        <source>Not enabled</source>
        <translation>No habilitado</translation>
    </message>
    <message>
        <source>Digital</source>
        <translation>Digital</translation>
    </message>
    <message>
        <source>Analog</source>
        <translation>Analógica</translation>
    </message>
    <message>
        <source>Totalisers</source>
        <translation>Totalizadores</translation>
    </message>
    <message>
        <source>Sampling</source>
        <translation>Muestreo</translation>
    </message>
    <message>
        <source>Equation</source>
        <translation>Ecuación</translation>
    </message>
    <message>
        <source>Probe</source>
        <translation>Sonda</translation>
    </message>
    <message>
        <source>First half of the identity</source>
        <translation>Primera mitad de la identidad</translation>
    </message>
    <message>
        <source>Second half of the identity</source>
        <translation>Segunda mitad de la identidad</translation>
    </message>
    <message>
        <source>Unit of the amount</source>
        <translation>Unidad de la cantidad</translation>
    </message>
    <message>
        <source>Mask:</source>
        <translation>Máscara:</translation>
    </message>
    <message>
        <source>Bit %1</source>
        <translation>Bit n.º %1</translation>
    </message>
    <message>
        <source>%1, serial number %2</source>
        <translation>%1, número de serie %2</translation>
    </message>
    <message>
        <source>&amp;Keep a safety copy, write, and read back (about %1)</source>
        <translation>&amp;Guardar una copia, escribir y volver a leer (unos %1)</translation>
    </message>
    <message>
        <source>&amp;Show what will change before anything is sent</source>
        <translation>&amp;Mostrar qué cambiará antes de enviar nada</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <translation>&amp;Escribir</translation>
    </message>
    <message>
        <source>&amp;Write all the same</source>
        <translation>&amp;Escribir de todos modos</translation>
    </message>
    <message>
        <source>Both hold the same.</source>
        <translation>Ambas contienen lo mismo.</translation>
    </message>
    <message>
        <source>In the logger</source>
        <translation>En el registrador</translation>
    </message>
    <message>
        <source>Nothing was sent, since no safety copy could be kept: %1</source>
        <translation>No se ha enviado nada, porque no se pudo guardar una copia: %1</translation>
    </message>
    <message>
        <source>Sent</source>
        <translation>Enviado</translation>
    </message>
    <message>
        <source>The logger holds another configuration than was sent</source>
        <translation>El registrador contiene otra configuración que la enviada</translation>
    </message>
    <message>
        <source>To be written</source>
        <translation>Se escribirá</translation>
    </message>
    <message>
        <source>What will change</source>
        <translation>Qué cambiará</translation>
    </message>
    <message>
        <source>Write &amp;only (about %1)</source>
        <translation>Solo e&amp;scribir (unos %1)</translation>
    </message>
    <message>
        <source>Write the configuration</source>
        <translation>Escribir la configuración</translation>
    </message>
    <message>
        <source>Written and verified: the logger holds what the pages show.</source>
        <translation>Escrito y verificado: el registrador contiene lo que muestran las páginas.</translation>
    </message>
    <message>
        <source>the pages show what was there before the reading</source>
        <translation>las páginas muestran lo que había antes de la lectura</translation>
    </message>
    <message>
        <source>%1 is protected: %2. Replace it all the same?</source>
        <translation>%1 está protegido: %2. ¿Sustituirlo de todos modos?</translation>
    </message>
    <message>
        <source>it is read-only</source>
        <translation>es de solo lectura</translation>
    </message>
    <message>
        <source>it is a link that leads in a circle</source>
        <translation>es un enlace que lleva en círculo</translation>
    </message>
    <message>
        <source>a line arrived that is longer than any of a logger</source>
        <translation>llegó una línea más larga que cualquiera de un registrador</translation>
    </message>
    <message>
        <source>record %1 is longer than any line of a logger</source>
        <translation>el registro %1 es más largo que cualquier línea de un registrador</translation>
    </message>
    <message>
        <source>the answer to statement %1 is longer than any line of a logger</source>
        <translation>la respuesta a la sentencia %1 es más larga que cualquier línea de un registrador</translation>
    </message>
    <message>
        <source>check that a logger is what is connected</source>
        <translation>compruebe que lo conectado es un registrador</translation>
    </message>
    <message>
        <source>the logger says that it is the model %1, and the model chosen is %2</source>
        <translation>el registrador dice ser del modelo %1, y el modelo elegido es %2</translation>
    </message>
    <message>
        <source>what was read from the logger fits the model %1, and the model chosen is %2</source>
        <translation>lo leído del registrador corresponde al modelo %1, y el modelo elegido es %2</translation>
    </message>
    <message>
        <source>what was read from the logger fits no model, and the model chosen is %1</source>
        <translation>lo leído del registrador no corresponde a ningún modelo, y el modelo elegido es %1</translation>
    </message>
    <message>
        <source>the logger did not tell who it is</source>
        <translation>el registrador no ha dicho quién es</translation>
    </message>
    <message>
        <source>the logger did not tell who it is: lines were lost or arrived damaged</source>
        <translation>el registrador no ha dicho quién es: se perdieron líneas o llegaron dañadas</translation>
    </message>
    <message>
        <source>the logger greets, and does not tell who it is: it may have no firmware</source>
        <translation>el registrador saluda y no dice quién es: puede que no tenga firmware</translation>
    </message>
    <message>
        <source>the last reading of the logger failed</source>
        <translation>la última lectura del registrador falló</translation>
    </message>
    <message>
        <source>nothing has been read from a logger or opened since the program started</source>
        <translation>no se ha leído ni abierto nada desde que arrancó el programa</translation>
    </message>
    <message>
        <source>the file that was opened is not whole: %1</source>
        <translation>el archivo que se abrió no está completo: %1</translation>
    </message>
    <message>
        <source>the configuration on the pages is empty</source>
        <translation>la configuración de las páginas está vacía</translation>
    </message>
    <message>
        <source>the check finds %1 error(s), the first: %2</source>
        <translation>la comprobación encuentra %1 errores, el primero: %2</translation>
    </message>
    <message>
        <source>Schedule</source>
        <translation>Calendario</translation>
    </message>
    <message>
        <source>Show when the timers fire</source>
        <translation>Mostrar cuándo se ejecutan los temporizadores</translation>
    </message>
    <message>
        <source>What happens when</source>
        <translation>Qué ocurre y cuándo</translation>
    </message>
    <message>
        <source>No timer is enabled.</source>
        <translation>No hay ningún temporizador habilitado.</translation>
    </message>
    <message>
        <source>The next %1 times within %2 days from %3. Cyclic and long timers are told as if they began to count then, and conditions as if they held.</source>
        <translation>Las próximas %1 veces en %2 días desde %3. Los temporizadores cíclicos y largos se muestran como si empezaran a contar entonces, y las condiciones como si se cumplieran.</translation>
    </message>
    <message>
        <source>Timer</source>
        <translation>Temporizador</translation>
    </message>
    <message>
        <source>When</source>
        <translation>Cuándo</translation>
    </message>
    <message>
        <source>If</source>
        <translation>Si</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Ejecuta</translation>
    </message>
    <message>
        <source>Next times</source>
        <translation>Próximas veces</translation>
    </message>
    <message>
        <source>macro %1</source>
        <translation>macro %1</translation>
    </message>
    <message>
        <source>Not within %1 days</source>
        <translation>No en %1 días</translation>
    </message>
    <message>
        <source>every %1 s</source>
        <translation>cada %1 s</translation>
    </message>
    <message>
        <source>%1, from %2 to %3, %4</source>
        <translation>%1, de %2 a %3, %4</translation>
    </message>
    <message>
        <source>every day</source>
        <translation>cada día</translation>
    </message>
    <message>
        <source>every %1 days</source>
        <translation>cada %1 días</translation>
    </message>
    <message>
        <source>on %1</source>
        <translation>los días %1</translation>
    </message>
    <message>
        <source>on no day</source>
        <translation>ningún día</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1 a las %2</translation>
    </message>
    <message>
        <source>last</source>
        <translation>último</translation>
    </message>
    <message>
        <source>Mo</source>
        <translation>Lu</translation>
    </message>
    <message>
        <source>Tu</source>
        <translation>Ma</translation>
    </message>
    <message>
        <source>We</source>
        <translation>Mi</translation>
    </message>
    <message>
        <source>Th</source>
        <translation>Ju</translation>
    </message>
    <message>
        <source>Fr</source>
        <translation>Vi</translation>
    </message>
    <message>
        <source>Sa</source>
        <translation>Sá</translation>
    </message>
    <message>
        <source>Su</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>cyclic timer</source>
        <translation>temporizador cíclico</translation>
    </message>
    <message>
        <source>long timer</source>
        <translation>temporizador largo</translation>
    </message>
    <message>
        <source>weekly timer</source>
        <translation>temporizador semanal</translation>
    </message>
    <message>
        <source>monthly timer</source>
        <translation>temporizador mensual</translation>
    </message>
    <message>
        <source>the period of long timer %1 does not fit a statement</source>
        <translation>el período del temporizador largo %1 no cabe en una orden</translation>
    </message>
    <message>
        <source>choose at most 24855 days</source>
        <translation>elija como mucho 24855 días</translation>
    </message>
    <message>
        <source>the days of a month are no whole number from 0 to 4294967295: choose the days anew</source>
        <translation>los días del mes no son un número entero de 0 a 4294967295: elija los días de nuevo</translation>
    </message>
    <message>
        <source>days of the month</source>
        <translation>días del mes</translation>
    </message>
    <message>
        <source>New line</source>
        <translation>Línea nueva</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Líneas</translation>
    </message>
    <message>
        <source>This line is not sent to the logger.</source>
        <translation>Esta línea no se envía al equipo.</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>Números</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>Llamada</translation>
    </message>
    <message>
        <source>This is not an address: write four numbers from 0 to 255 with points between them, or 0 for none.</source>
        <translation>Esto no es una dirección: escriba cuatro números de 0 a 255 separados por puntos, o 0 si no hay ninguna.</translation>
    </message>
    <message>
        <source>the check sum of the logger&apos;s list differs</source>
        <translation>la suma de control de la lista del equipo es distinta</translation>
    </message>
    <message>
        <source>lines were lost or arrived damaged: try again</source>
        <translation>se perdieron líneas o llegaron dañadas: inténtelo de nuevo</translation>
    </message>
    <message>
        <source>Filter the numbers</source>
        <translation>Filtrar los números</translation>
    </message>
    <message>
        <source>Open, last answer %1 ago</source>
        <translation>Sesión abierta, última respuesta hace %1</translation>
    </message>
    <message>
        <source>Silent, last answer %1 ago</source>
        <translation>Sin respuesta, la última hace %1</translation>
    </message>
    <message>
        <source>Line lost</source>
        <translation>Línea perdida</translation>
    </message>
    <message>
        <source>%1, step %2 of %3</source>
        <translation>%1, paso %2 de %3</translation>
    </message>
    <message>
        <source>Read the logger's configuration</source>
        <translation>Leer la configuración del registrador</translation>
    </message>
    <message>
        <source>Write the configuration to the logger</source>
        <translation>Escribir la configuración en el registrador</translation>
    </message>
    <message>
        <source>Break off what is under way and close the session</source>
        <translation>Interrumpir lo que está en curso y cerrar la sesión</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Recibido</translation>
    </message>
    <message>
        <source>Modem</source>
        <translation>Módem</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Notas</translation>
    </message>
    <message>
        <source>Search, Enter finds the next</source>
        <translation>Buscar; Intro encuentra el siguiente</translation>
    </message>
    <message>
        <source>Search in the trace</source>
        <translation>Buscar en la traza</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>Guardar...</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Save the configuration to another file</source>
        <translation>Guardar la configuración en otro archivo</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 no existe.</translation>
    </message>
    <message>
        <source>nothing can be written without a session</source>
        <translation>no se puede escribir nada sin una sesión</translation>
    </message>
    <message>
        <source>nothing was sent, since the logger has not answered for %1 s</source>
        <translation>no se ha enviado nada, ya que el registrador no responde desde hace %1 s</translation>
    </message>
    <message>
        <source>nothing was sent, since the line to the logger is lost</source>
        <translation>no se ha enviado nada, ya que se ha perdido la línea con el registrador</translation>
    </message>
    <message>
        <source>the logger has taken the new configuration over, which is not verified</source>
        <translation>el registrador ha adoptado la nueva configuración, que no está verificada</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Hallazgos</translation>
    </message>
    <message>
        <source>Show what the check finds in the configuration</source>
        <translation>Mostrar lo que encuentra la comprobación en la configuración</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Dónde</translation>
    </message>
    <message>
        <source>What to know</source>
        <translation>Qué conviene saber</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>alarm enabled</source>
        <translation>alarma habilitada</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>modificado</translation>
    </message>
    <message>
        <source>the check finds an error</source>
        <translation>la comprobación encuentra un error</translation>
    </message>
    <message>
        <source>the check has a warning</source>
        <translation>la comprobación avisa</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>alarm %1, %2</source>
        <translation>alarma %1, %2</translation>
    </message>
    <message>
        <source>Administrator</source>
        <translation>Administrador</translation>
    </message>
    <message>
        <source>Advanced user</source>
        <translation>U. avanzado</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Usuario</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
    </message>
    <message>
        <source>No alarms</source>
        <translation>Ninguna alarma</translation>
    </message>
    <message>
        <source>All but %1</source>
        <translation>Todas menos %1</translation>
    </message>
    <message>
        <source>All alarms</source>
        <translation>Todas las alarmas</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Prioridad</translation>
    </message>
    <message>
        <source>Privilege</source>
        <translation>Privilegio</translation>
    </message>
    <message>
        <source>Alarms of</source>
        <translation>Alarmas de</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Search the available actions</source>
        <translation>Buscar en las acciones disponibles</translation>
    </message>
    <message>
        <source>They run from top to bottom. Drag them, or move them by Alt and the arrow keys; Delete removes.</source>
        <translation>Se ejecutan de arriba abajo. Arrástrelas, o muévalas con Alt y las flechas; Supr elimina.</translation>
    </message>
    <message>
        <source>general</source>
        <translation>general</translation>
    </message>
    <message>
        <source>digital input</source>
        <translation>entrada digital</translation>
    </message>
    <message>
        <source>analog input</source>
        <translation>entrada analógica</translation>
    </message>
    <message>
        <source>analog group</source>
        <translation>grupo de analógicas</translation>
    </message>
    <message>
        <source>auxiliary input</source>
        <translation>entrada auxiliar</translation>
    </message>
    <message>
        <source>OFF measurement</source>
        <translation>medida OFF</translation>
    </message>
    <message>
        <source>flag</source>
        <translation>flag</translation>
    </message>
    <message>
        <source>flow meter</source>
        <translation>caudalímetro</translation>
    </message>
    <message>
        <source>math channel</source>
        <translation>canal matemático</translation>
    </message>
    <message>
        <source>1-Wire probe</source>
        <translation>sonda 1-Wire</translation>
    </message>
    <message>
        <source>MODBUS bus</source>
        <translation>bus MODBUS</translation>
    </message>
    <message>
        <source>MODBUS channel</source>
        <translation>canal MODBUS</translation>
    </message>
    <message>
        <source>expansion input</source>
        <translation>entrada de expansión</translation>
    </message>
    <message>
        <source>digital expansion input</source>
        <translation>entrada digital de expansión</translation>
    </message>
    <message>
        <source>flow meter expansion input</source>
        <translation>caudalímetro de expansión</translation>
    </message>
    <message>
        <source>counter expansion input</source>
        <translation>contador de expansión</translation>
    </message>
    <message>
        <source>analog expansion input</source>
        <translation>entrada analógica de expansión</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>unit</source>
        <translation>unidad</translation>
    </message>
    <message>
        <source>interface</source>
        <translation>interfaz</translation>
    </message>
    <message>
        <source>normally closed</source>
        <translation>normalmente cerrado</translation>
    </message>
    <message>
        <source>time between resends</source>
        <translation>tiempo entre reenvíos</translation>
    </message>
    <message>
        <source>resends</source>
        <translation>reenvíos</translation>
    </message>
    <message>
        <source>own number</source>
        <translation>número propio</translation>
    </message>
    <message>
        <source>text of a restoration</source>
        <translation>texto de restauración</translation>
    </message>
    <message>
        <source>telephone</source>
        <translation>teléfono</translation>
    </message>
    <message>
        <source>start of scale</source>
        <translation>inicio de escala</translation>
    </message>
    <message>
        <source>full scale</source>
        <translation>fondo de escala</translation>
    </message>
    <message>
        <source>value at start of scale</source>
        <translation>valor al inicio de escala</translation>
    </message>
    <message>
        <source>value at full scale</source>
        <translation>valor a fondo de escala</translation>
    </message>
    <message>
        <source>group</source>
        <translation>grupo</translation>
    </message>
    <message>
        <source>output</source>
        <translation>salida</translation>
    </message>
    <message>
        <source>voltage</source>
        <translation>tensión</translation>
    </message>
    <message>
        <source>period</source>
        <translation>periodo</translation>
    </message>
    <message>
        <source>enabled</source>
        <translation>habilitada</translation>
    </message>
    <message>
        <source>restoration message</source>
        <translation>mensaje de restauración</translation>
    </message>
    <message>
        <source>resend</source>
        <translation>reenviar</translation>
    </message>
    <message>
        <source>notify by SMS</source>
        <translation>avisar por SMS</translation>
    </message>
    <message>
        <source>notify by SMS and voice</source>
        <translation>avisar por SMS y voz</translation>
    </message>
    <message>
        <source>notify by GPRS</source>
        <translation>avisar por GPRS</translation>
    </message>
    <message>
        <source>text</source>
        <translation>texto</translation>
    </message>
    <message>
        <source>minimum</source>
        <translation>mínimo</translation>
    </message>
    <message>
        <source>maximum</source>
        <translation>máximo</translation>
    </message>
    <message>
        <source>hysteresis</source>
        <translation>histéresis</translation>
    </message>
    <message>
        <source>persistence</source>
        <translation>persistencia</translation>
    </message>
    <message>
        <source>rearming</source>
        <translation>rearme</translation>
    </message>
    <message>
        <source>always valid</source>
        <translation>siempre válida</translation>
    </message>
    <message>
        <source>valid from</source>
        <translation>válida desde</translation>
    </message>
    <message>
        <source>valid until</source>
        <translation>válida hasta</translation>
    </message>
    <message>
        <source>valid days</source>
        <translation>días válidos</translation>
    </message>
    <message>
        <source>condition flag</source>
        <translation>flag de condición</translation>
    </message>
    <message>
        <source>actions, high</source>
        <translation>acciones, alto</translation>
    </message>
    <message>
        <source>actions, low</source>
        <translation>acciones, bajo</translation>
    </message>
    <message>
        <source>actions, normal</source>
        <translation>acciones, normal</translation>
    </message>
    <message>
        <source>minimum, or rearming of a digital one</source>
        <translation>mínimo, o rearme si es digital</translation>
    </message>
    <message>
        <source>maximum, or persistence of a digital one</source>
        <translation>máximo, o persistencia si es digital</translation>
    </message>
    <message>
        <source>slave address</source>
        <translation>dirección del esclavo</translation>
    </message>
    <message>
        <source>register address</source>
        <translation>dirección del registro</translation>
    </message>
    <message>
        <source>multiplier</source>
        <translation>multiplicador</translation>
    </message>
    <message>
        <source>analog</source>
        <translation>analógico</translation>
    </message>
    <message>
        <source>constant</source>
        <translation>constante</translation>
    </message>
    <message>
        <source>bit mask</source>
        <translation>máscara de bits</translation>
    </message>
    <message>
        <source>negated</source>
        <translation>negado</translation>
    </message>
    <message>
        <source>register size</source>
        <translation>tamaño del registro</translation>
    </message>
    <message>
        <source>bit rate</source>
        <translation>velocidad</translation>
    </message>
    <message>
        <source>bus master</source>
        <translation>maestro del bus</translation>
    </message>
    <message>
        <source>own address as a slave</source>
        <translation>dirección propia como esclavo</translation>
    </message>
    <message>
        <source>time base</source>
        <translation>base de tiempo</translation>
    </message>
    <message>
        <source>units a pulse</source>
        <translation>unidades por pulso</translation>
    </message>
    <message>
        <source>units of a pulse</source>
        <translation>unidades por pulso</translation>
    </message>
    <message>
        <source>equation</source>
        <translation>ecuación</translation>
    </message>
    <message>
        <source>length of an OFF measurement</source>
        <translation>duración de una medida OFF</translation>
    </message>
    <message>
        <source>sampling of an OFF measurement</source>
        <translation>muestreo de una medida OFF</translation>
    </message>
    <message>
        <source>amperes of a volt at the shunt</source>
        <translation>amperios por voltio en el shunt</translation>
    </message>
    <message>
        <source>addressed by identity</source>
        <translation>direccionada por identidad</translation>
    </message>
    <message>
        <source>first half of the identity</source>
        <translation>primera mitad de la identidad</translation>
    </message>
    <message>
        <source>second half of the identity</source>
        <translation>segunda mitad de la identidad</translation>
    </message>
    <message>
        <source>mode</source>
        <translation>modo</translation>
    </message>
    <message>
        <source>module address</source>
        <translation>dirección del módulo</translation>
    </message>
    <message>
        <source>input on the module</source>
        <translation>entrada del módulo</translation>
    </message>
    <message>
        <source>group, in the file alone</source>
        <translation>grupo, solo en el fichero</translation>
    </message>
    <message>
        <source>sampling rate in hertz</source>
        <translation>frecuencia de muestreo en hercios</translation>
    </message>
    <message>
        <source>weight of a pulse in the totaliser</source>
        <translation>peso de un pulso en el totalizador</translation>
    </message>
    <message>
        <source>readings</source>
        <translation>lecturas</translation>
    </message>
    <message>
        <source>cycles</source>
        <translation>ciclos</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <source>bit/s</source>
        <translation>bit/s</translation>
    </message>
    <message>
        <source>hundredths of a second</source>
        <translation>centésimas de segundo</translation>
    </message>
    <message>
        <source>off</source>
        <translation>no habilitado</translation>
    </message>
    <message>
        <source>on</source>
        <translation>habilitado</translation>
    </message>
    <message>
        <source>4/20 mA</source>
        <translation>4/20 mA</translation>
    </message>
    <message>
        <source>0-5 V</source>
        <translation>0-5 V</translation>
    </message>
    <message>
        <source>0-10 V</source>
        <translation>0-10 V</translation>
    </message>
    <message>
        <source>pressure</source>
        <translation>presión</translation>
    </message>
    <message>
        <source>temperature</source>
        <translation>temperatura</translation>
    </message>
    <message>
        <source>humidity</source>
        <translation>humedad</translation>
    </message>
    <message>
        <source>digital</source>
        <translation>digital</translation>
    </message>
    <message>
        <source>counter</source>
        <translation>contador</translation>
    </message>
    <message>
        <source>16 bits</source>
        <translation>16 bits</translation>
    </message>
    <message>
        <source>32 bits</source>
        <translation>32 bits</translation>
    </message>
    <message>
        <source>float</source>
        <translation>coma flotante</translation>
    </message>
    <message>
        <source>a comma ends the text on the line: write something else for it</source>
        <translation>una coma termina el texto en la línea: escriba otra cosa en su lugar</translation>
    </message>
    <message>
        <source>a brace encloses commands on the line: write something else for it</source>
        <translation>una llave encierra órdenes en la línea: escriba otra cosa en su lugar</translation>
    </message>
    <message>
        <source>a control character breaks the line: remove it</source>
        <translation>un carácter de control rompe la línea: quítelo</translation>
    </message>
    <message>
        <source>%1 statements, and their numbers have three digits: set up less</source>
        <translation>%1 sentencias, y sus números tienen tres cifras: configure menos cosas</translation>
    </message>
    <message>
        <source>%1 characters, and its box takes %2: shorten it</source>
        <translation>%1 caracteres, y en el campo caben %2: acórtelo</translation>
    </message>
    <message>
        <source>%1 characters, of which only the first 254 are read: shorten it</source>
        <translation>%1 caracteres, de los que solo se leen los primeros 254: acórtelo</translation>
    </message>
    <message>
        <source>%1 is no value for this: it is read as %2</source>
        <translation>%1 no es un valor para este campo: se lee como %2</translation>
    </message>
    <message>
        <source>the section is missing, and is read as empty</source>
        <translation>falta la sección, y se lee como vacía</translation>
    </message>
    <message>
        <source>this section and %1 more are missing, and are read as empty</source>
        <translation>faltan esta sección y %1 más, y se leen como vacías</translation>
    </message>
    <message>
        <source>the key is missing, and is read as empty</source>
        <translation>falta la clave, y se lee como vacía</translation>
    </message>
    <message>
        <source>this key and %1 more of the section are missing, and are read as empty</source>
        <translation>faltan esta clave y %1 más de la sección, y se leen como vacías</translation>
    </message>
    <message>
        <source>the %1 has no action %2: choose another one or 0</source>
        <translation>el %1 no tiene la acción %2: elija otra o 0</translation>
    </message>
    <message>
        <source>this firmware does not take the setting: it is left out of an upload</source>
        <translation>este firmware no admite el ajuste: no se incluye en una escritura</translation>
    </message>
    <message>
        <source>this firmware knows masks of DI0 to DI7 and AI0 to AI3 alone, so these are left out:%1</source>
        <translation>este firmware solo conoce máscaras de DI0 a DI7 y AI0 a AI3, así que estas se omiten:%1</translation>
    </message>
    <message>
        <source>this firmware takes a mask as the channels to include, never to exclude</source>
        <translation>este firmware toma una máscara como los canales incluidos, nunca excluidos</translation>
    </message>
    <message>
        <source>%1 is no telephone number</source>
        <translation>%1 no es un número de teléfono</translation>
    </message>
    <message>
        <source>a number of fewer than 3 digits does not read back from a logger</source>
        <translation>un número de menos de 3 cifras no se puede volver a leer del equipo</translation>
    </message>
    <message>
        <source>%1 stands in the list twice: remove one of them</source>
        <translation>%1 está dos veces en la lista: quite uno de los dos</translation>
    </message>
    <message>
        <source>the alarm notifies, but no telephone's mask admits %1: add a telephone or widen a mask</source>
        <translation>la alarma avisa, pero la máscara de ningún teléfono admite %1: añada un teléfono o amplíe una máscara</translation>
    </message>
    <message>
        <source>the alarm is enabled but valid on no day, which a logger takes for disabled: choose days</source>
        <translation>la alarma está habilitada pero no es válida ningún día, lo que el equipo toma por no habilitada: elija días</translation>
    </message>
    <message>
        <source>the minimum %1 lies above the maximum %2, so that every value is in alarm: exchange them</source>
        <translation>el mínimo %1 está por encima del máximo %2, y todo valor está en alarma: intercámbielos</translation>
    </message>
    <message>
        <source>the hysteresis %1 is larger than the band from %2 to %3, so that the alarm cannot end: make it smaller</source>
        <translation>la histéresis %1 es mayor que la banda de %2 a %3, y la alarma no puede terminar: redúzcala</translation>
    </message>
    <message>
        <source>the alarm is enabled, but the channel is off: set up one or the other</source>
        <translation>la alarma está habilitada, pero el canal no: configure lo uno o lo otro</translation>
    </message>
    <message>
        <source>the alarm is enabled, but the channel is off, having neither a multiplier nor a mask: set up one or the other</source>
        <translation>la alarma está habilitada, pero el canal no, pues no tiene multiplicador ni máscara: configure lo uno o lo otro</translation>
    </message>
    <message>
        <source>the alarm is enabled, but the channel is never read, its slave address being 0: set up one or the other</source>
        <translation>la alarma está habilitada, pero el canal no se lee nunca, pues la dirección del esclavo es 0: configure lo uno o lo otro</translation>
    </message>
    <message>
        <source>an address on the bus is 0 to 247: choose another one</source>
        <translation>una dirección del bus va de 0 a 247: elija otra</translation>
    </message>
    <message>
        <source>a register has no address below 0: choose another one</source>
        <translation>un registro no tiene dirección menor que 0: elija otra</translation>
    </message>
    <message>
        <source>%1 is no bit rate of the bus: choose 1200, 2400, 4800, 9600, 19200, 38400 or 57600</source>
        <translation>%1 no es una velocidad del bus: elija 1200, 2400, 4800, 9600, 19200, 38400 o 57600</translation>
    </message>
    <message>
        <source>an analog channel whose multiplier is not above 0 reads back as a digital one: choose another multiplier</source>
        <translation>un canal analógico cuyo multiplicador no es mayor que 0 se vuelve a leer como digital: elija otro multiplicador</translation>
    </message>
    <message>
        <source>the register size is none of the three and is sent as 16 bits</source>
        <translation>el tamaño del registro no es ninguno de los tres y se envía como 16 bits</translation>
    </message>
    <message>
        <source>an earlier program's mark of 32 bits is not taken over: choose the register size</source>
        <translation>la marca de 32 bits de un programa anterior no se conserva: elija el tamaño del registro</translation>
    </message>
    <message>
        <source>module address %1, input %2 is that of expansion input %3, too: give each its own</source>
        <translation>la dirección de módulo %1, entrada %2 es también la de la entrada de expansión %3: dé a cada una la suya</translation>
    </message>
    <message>
        <source>there is no such mode, and nothing is sent of the input: choose 0 to 4</source>
        <translation>ese modo no existe, y no se envía nada de la entrada: elija de 0 a 4</translation>
    </message>
    <message>
        <source>%1 is not within 0 to %2: choose another one</source>
        <translation>%1 no está entre 0 y %2: elija otro</translation>
    </message>
    <message>
        <source>no interface is chosen, and the logger keeps the one that it has: choose 1 for 4/20 mA or 3 for 0-10 V</source>
        <translation>no hay interfaz elegida, y el equipo conserva la que tiene: elija 1 para 4/20 mA o 3 para 0-10 V</translation>
    </message>
    <message>
        <source>%1 is no half of an identity: write four numbers up to 255 with points between them</source>
        <translation>%1 no es la mitad de una identidad: escriba cuatro números hasta 255 separados por puntos</translation>
    </message>
    <message>
        <source>probe %1 has the same identity: read that of the other one</source>
        <translation>la sonda %1 tiene la misma identidad: lea la de la otra</translation>
    </message>
    <message>
        <source>the %1 has no channel %2: name another one</source>
        <translation>el %1 no tiene el canal %2: nombre otro</translation>
    </message>
    <message>
        <source>start of scale and full scale are the same signal, so that there is no value: set up both</source>
        <translation>el inicio y el fondo de escala son la misma señal, y no hay valor: configure los dos</translation>
    </message>
    <message>
        <source>full scale lies below the start of scale: exchange them, and their values</source>
        <translation>el fondo de escala está por debajo del inicio: intercámbielos, y sus valores</translation>
    </message>
    <message>
        <source>both ends of the scale have the same value, so that the channel never changes: set up both</source>
        <translation>los dos extremos de la escala tienen el mismo valor, y el canal no cambia nunca: configure los dos</translation>
    </message>
    <message>
        <source>the value falls as the signal rises: exchange the values, unless the sensor is such a one</source>
        <translation>el valor baja cuando la señal sube: intercambie los valores, salvo que el sensor sea así</translation>
    </message>
    <message>
        <source>there is no interface %1, and the logger keeps the one that it has: choose another one</source>
        <translation>no existe la interfaz %1, y el equipo conserva la que tiene: elija otra</translation>
    </message>
    <message>
        <source>%1 makes no sense here, where %2 does: correct it</source>
        <translation>%1 no tiene sentido aquí, donde lo tiene %2: corríjalo</translation>
    </message>
    <message>
        <source>the timer is enabled, but its period is not above 0: give it one</source>
        <translation>el temporizador está habilitado, pero su período no es mayor que 0: indique uno</translation>
    </message>
    <message>
        <source>the timer is enabled, but on no day: choose days</source>
        <translation>el temporizador está habilitado, pero ningún día: elija días</translation>
    </message>
    <message>
        <source>%1 days do not fit a statement, and nothing can be sent: choose at most 24855</source>
        <translation>%1 días no caben en una instrucción y no se puede enviar nada: elija 24855 como máximo</translation>
    </message>
    <message>
        <source>the timer is enabled, but runs no action: choose one</source>
        <translation>el temporizador está habilitado, pero no ejecuta ninguna acción: elija una</translation>
    </message>
    <message>
        <source>no timer reads the channel: let one run action 70, or that of its group</source>
        <translation>ningún temporizador lee el canal: haga que uno ejecute la acción 70 o la de su grupo</translation>
    </message>
    <message>
        <source>days</source>
        <translation>días</translation>
    </message>
    <message>
        <source>actions</source>
        <translation>acciones</translation>
    </message>
    <message>
        <source>time of day</source>
        <translation>hora</translation>
    </message>
    <message>
        <source>days of the week</source>
        <translation>días de la semana</translation>
    </message>
    <message>
        <source>the line is neither MACRO and a number up to 55 nor F and a number, with the command in one pair of braces: write it anew</source>
        <translation>la línea no es MACRO y un número hasta 55, ni F y un número, con el comando entre un par de llaves: escríbala de nuevo</translation>
    </message>
    <message>
        <source>there is no flag %1: equations are F0 to F15</source>
        <translation>no existe el flag %1: las ecuaciones son F0 a F15</translation>
    </message>
    <message>
        <source>the lines have %1 characters more than the 1024 that a logger has room for: shorten or remove some</source>
        <translation>las líneas tienen %1 caracteres más de los 1024 que caben en un equipo: acorte o elimine algunas</translation>
    </message>
    <message>
        <source>a logger gets the first 40 lines, and %1 are left out of an upload: remove what is not needed</source>
        <translation>un equipo recibe las primeras 40 líneas, y %1 quedan fuera de una escritura: elimine lo que no haga falta</translation>
    </message>
    <message>
        <source>%1 stands in line %2 already: give one of them another number</source>
        <translation>%1 ya está en la línea %2: dé otro número a una de las dos</translation>
    </message>
    <message>
        <source>macro %1 does not exist: write it or choose another one</source>
        <translation>no existe la macro %1: escríbala o elija otra</translation>
    </message>
    <message>
        <source>macro %1 is empty: give it a command or choose another one</source>
        <translation>la macro %1 está vacía: déle un comando o elija otra</translation>
    </message>
    <message>
        <source>flag F%1 is the condition, and no equation sets it: write one or choose TRUE</source>
        <translation>la condición es el flag F%1, y ninguna ecuación lo fija: escriba una o elija TRUE</translation>
    </message>
    <message>
        <source>voice calls start macros 0 to 39: choose one of these or none</source>
        <translation>las llamadas de voz ejecutan las macros 0 a 39: elija una de ellas o ninguna</translation>
    </message>
    <message>
        <source>alarms notify by GPRS, %1 in all, and there is no APN: give one</source>
        <translation>hay alarmas que avisan por GPRS, %1 en total, y no hay APN: indique una</translation>
    </message>
    <message>
        <source>GPRS is enabled without a server: give its address</source>
        <translation>el GPRS está habilitado sin servidor: indique su dirección</translation>
    </message>
    <message>
        <source>the mask names channels that have no enabled alarm:%1</source>
        <translation>la máscara nombra canales sin ninguna alarma habilitada:%1</translation>
    </message>
    <message>
        <source>macros and equations</source>
        <translation>macros y ecuaciones</translation>
    </message>
    <message>
        <source>GPRS and FTP</source>
        <translation>GPRS y FTP</translation>
    </message>
    <message>
        <source>voice-call list</source>
        <translation>lista de llamadas de voz</translation>
    </message>
    <message>
        <source>line</source>
        <translation>línea</translation>
    </message>
    <message>
        <source>macro of a voice call</source>
        <translation>macro de una llamada de voz</translation>
    </message>
    <message>
        <source>acknowledgement</source>
        <translation>acuse de recibo</translation>
    </message>
    <message>
        <source>number</source>
        <translation>número</translation>
    </message>
    <message>
        <source>APN</source>
        <translation>APN</translation>
    </message>
    <message>
        <source>APN password</source>
        <translation>contraseña de la APN</translation>
    </message>
    <message>
        <source>APN user</source>
        <translation>usuario de la APN</translation>
    </message>
    <message>
        <source>connection attempts</source>
        <translation>intentos de conexión</translation>
    </message>
    <message>
        <source>time between attempts</source>
        <translation>tiempo entre intentos</translation>
    </message>
    <message>
        <source>disconnection timeout</source>
        <translation>tiempo máximo de desconexión</translation>
    </message>
    <message>
        <source>server address</source>
        <translation>dirección del servidor</translation>
    </message>
    <message>
        <source>server port</source>
        <translation>puerto del servidor</translation>
    </message>
    <message>
        <source>server timeout</source>
        <translation>tiempo máximo del servidor</translation>
    </message>
    <message>
        <source>connection kept up</source>
        <translation>conexión permanente</translation>
    </message>
    <message>
        <source>GPRS enabled</source>
        <translation>GPRS habilitado</translation>
    </message>
    <message>
        <source>FTP server address</source>
        <translation>dirección del servidor FTP</translation>
    </message>
    <message>
        <source>FTP path</source>
        <translation>ruta FTP</translation>
    </message>
    <message>
        <source>FTP user</source>
        <translation>usuario FTP</translation>
    </message>
    <message>
        <source>FTP password</source>
        <translation>contraseña FTP</translation>
    </message>
    <message>
        <source>FTP attempts</source>
        <translation>intentos FTP</translation>
    </message>
    <message>
        <source>time between FTP attempts</source>
        <translation>tiempo entre intentos FTP</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Undo what was edited on a page</source>
        <translation>Deshacer lo editado en una página</translation>
    </message>
    <message>
        <source>Do again what was undone</source>
        <translation>Rehacer lo deshecho</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>Save a commissioning report</source>
        <translation>Guardar un informe de puesta en marcha</translation>
    </message>
    <message>
        <source>Link doctor</source>
        <translation>Diagnóstico</translation>
    </message>
    <message>
        <source>Find out why nothing answers at the port</source>
        <translation>Averiguar por qué nada responde en el puerto</translation>
    </message>
    <message>
        <source>Record...</source>
        <translation>Grabar...</translation>
    </message>
    <message>
        <source>Keep every octet of the line in a file</source>
        <translation>Guardar cada octeto de la línea en un archivo</translation>
    </message>
    <message>
        <source>The recording could not be written whole.</source>
        <translation>La grabación no se ha podido escribir entera.</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Grabación</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Documento</translation>
    </message>
    <message>
        <source>Web page</source>
        <translation>Página web</translation>
    </message>
    <message>
        <source>it holds something else than a recording</source>
        <translation>contiene algo distinto de una grabación</translation>
    </message>
    <message>
        <source>no program reads the pipe</source>
        <translation>ningún programa lee la tubería</translation>
    </message>
    <message>
        <source>A session stands. The link doctor looks at a port that no session uses: end the session first.</source>
        <translation>Hay una sesión abierta. El diagnóstico examina un puerto que ninguna sesión usa: termine antes la sesión.</translation>
    </message>
    <message>
        <source>Report written to %1.</source>
        <translation>Informe escrito en %1.</translation>
    </message>
    <message>
        <source>in order</source>
        <translation>en orden</translation>
    </message>
    <message>
        <source>not in order</source>
        <translation>mal</translation>
    </message>
    <message>
        <source>to note</source>
        <translation>a tener en cuenta</translation>
    </message>
    <message>
        <source>Link doctor: %1</source>
        <translation>Diagnóstico de línea: %1</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Lo encontrado</translation>
    </message>
    <message>
        <source>Looked at</source>
        <translation>Examinado</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Encontrado</translation>
    </message>
    <message>
        <source>Looking...</source>
        <translation>Examinando...</translation>
    </message>
    <message>
        <source>What to try next: %1</source>
        <translation>Qué probar ahora: %1</translation>
    </message>
    <message>
        <source>device</source>
        <translation>dispositivo</translation>
    </message>
    <message>
        <source>permission</source>
        <translation>permiso</translation>
    </message>
    <message>
        <source>other programs</source>
        <translation>otros programas</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>apertura</translation>
    </message>
    <message>
        <source>control lines</source>
        <translation>líneas de control</translation>
    </message>
    <message>
        <source>listening</source>
        <translation>escucha</translation>
    </message>
    <message>
        <source>attempt %1</source>
        <translation>intento %1</translation>
    </message>
    <message>
        <source>modem</source>
        <translation>módem</translation>
    </message>
    <message>
        <source>data call</source>
        <translation>llamada de datos</translation>
    </message>
    <message>
        <source>damage</source>
        <translation>daños</translation>
    </message>
    <message>
        <source>%1 is there</source>
        <translation>%1 está presente</translation>
    </message>
    <message>
        <source>there is no device behind %1</source>
        <translation>no hay ningún dispositivo en %1</translation>
    </message>
    <message>
        <source>a simulated logger of this program</source>
        <translation>un equipo simulado de este programa</translation>
    </message>
    <message>
        <source>it may be read and written</source>
        <translation>se puede leer y escribir</translation>
    </message>
    <message>
        <source>it may not be opened by this user</source>
        <translation>este usuario no lo puede abrir</translation>
    </message>
    <message>
        <source>it may be opened by members of the group %1 alone</source>
        <translation>solo lo pueden abrir los miembros del grupo %1</translation>
    </message>
    <message>
        <source>nobody else is known to have it open</source>
        <translation>no consta que nadie más lo tenga abierto</translation>
    </message>
    <message>
        <source>in use by %1</source>
        <translation>en uso por %1</translation>
    </message>
    <message>
        <source>opened at 9600 bit/s</source>
        <translation>abierto a 9600 bit/s</translation>
    </message>
    <message>
        <source>it cannot be opened as a serial port</source>
        <translation>no se puede abrir como puerto serie</translation>
    </message>
    <message>
        <source>the device has none</source>
        <translation>el dispositivo no tiene</translation>
    </message>
    <message>
        <source>the other end is ready: %1</source>
        <translation>el otro extremo está listo: %1</translation>
    </message>
    <message>
        <source>the other end does not take octets: %1</source>
        <translation>el otro extremo no acepta octetos: %1</translation>
    </message>
    <message>
        <source>nothing comes unasked</source>
        <translation>no llega nada sin preguntar</translation>
    </message>
    <message>
        <source>readable text comes unasked, octets: %1</source>
        <translation>llega texto legible sin preguntar, octetos: %1</translation>
    </message>
    <message>
        <source>frames of a logger come unasked: %1</source>
        <translation>llegan tramas de un equipo sin preguntar: %1</translation>
    </message>
    <message>
        <source>noise: %1 octets, of which %2 belong to no text</source>
        <translation>ruido: %1 octetos, de los que %2 no son de ningún texto</translation>
    </message>
    <message>
        <source>no octet came in %1 s</source>
        <translation>no ha llegado ningún octeto en %1 s</translation>
    </message>
    <message>
        <source>the question did not leave: flow control holds the line</source>
        <translation>la pregunta no ha salido: el control de flujo retiene la línea</translation>
    </message>
    <message>
        <source>the question itself came back</source>
        <translation>ha vuelto la propia pregunta</translation>
    </message>
    <message>
        <source>a frame came with a wrong checksum</source>
        <translation>ha llegado una trama con mal código de control</translation>
    </message>
    <message>
        <source>something else was answered: &quot;%1&quot;</source>
        <translation>ha respondido otra cosa: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>text came, and no frame: &quot;%1&quot;</source>
        <translation>ha llegado texto y ninguna trama: &quot;%1&quot;</translation>
    </message>
    <message>
        <source>a logger greets: %1</source>
        <translation>un equipo saluda: %1</translation>
    </message>
    <message>
        <source>no modem answers</source>
        <translation>ningún módem responde</translation>
    </message>
    <message>
        <source>a modem answers</source>
        <translation>responde un módem</translation>
    </message>
    <message>
        <source>the logger behind the modem greets</source>
        <translation>el equipo tras el módem saluda</translation>
    </message>
    <message>
        <source>none: %1 lines came, all good</source>
        <translation>ninguno: han llegado %1 líneas, todas buenas</translation>
    </message>
    <message>
        <source>%1 of %2 lines came damaged</source>
        <translation>%1 de %2 líneas han llegado dañadas</translation>
    </message>
    <message>
        <source>the logger greets, and does not tell who it is</source>
        <translation>el equipo saluda y no dice quién es</translation>
    </message>
    <message>
        <source>the device has gone meanwhile</source>
        <translation>el dispositivo ha desaparecido entretanto</translation>
    </message>
    <message>
        <source>check that the adapter is plugged in, and choose its port</source>
        <translation>compruebe que el adaptador está enchufado y elija su puerto</translation>
    </message>
    <message>
        <source>join the group with &quot;sudo usermod -aG %1 $USER&quot;, then log out and in again</source>
        <translation>entre en el grupo con &quot;sudo usermod -aG %1 $USER&quot; y vuelva a iniciar la sesión</translation>
    </message>
    <message>
        <source>ask who looks after this machine for the permission</source>
        <translation>pida el permiso a quien administra este ordenador</translation>
    </message>
    <message>
        <source>check speed and cable: a device of another speed than 9600 bit/s looks like this</source>
        <translation>compruebe velocidad y cable: así se ve un dispositivo de otra velocidad que 9600 bit/s</translation>
    </message>
    <message>
        <source>take the loopback plug off, or undo the bridge between the two data lines</source>
        <translation>quite el conector de bucle o el puente entre las dos líneas de datos</translation>
    </message>
    <message>
        <source>a modem is at this port: give the number of the logger to dial</source>
        <translation>en este puerto hay un módem: indique el número del equipo</translation>
    </message>
    <message>
        <source>check cable and supply, and that the logger is awake</source>
        <translation>compruebe cable y alimentación, y que el equipo está despierto</translation>
    </message>
    <message>
        <source>check cable, earthing and connectors</source>
        <translation>compruebe cable, toma de tierra y conectores</translation>
    </message>
    <message>
        <source>nothing: the line is well</source>
        <translation>nada: la línea está bien</translation>
    </message>
    <message>
        <source>nothing: the modem and the logger behind it are well</source>
        <translation>nada: el módem y el equipo tras él están bien</translation>
    </message>
    <message>
        <source>check number, reception and access code</source>
        <translation>compruebe número, cobertura y código de acceso</translation>
    </message>
    <message>
        <source>Commissioning report</source>
        <translation>Informe de puesta en marcha</translation>
    </message>
    <message>
        <source>Made by the configuration tool of the logger.</source>
        <translation>Hecho por la herramienta de configuración del equipo.</translation>
    </message>
    <message>
        <source>Site and logger</source>
        <translation>Lugar y equipo</translation>
    </message>
    <message>
        <source>site</source>
        <translation>lugar</translation>
    </message>
    <message>
        <source>model</source>
        <translation>modelo</translation>
    </message>
    <message>
        <source>serial number</source>
        <translation>número de serie</translation>
    </message>
    <message>
        <source>firmware</source>
        <translation>versión</translation>
    </message>
    <message>
        <source>features</source>
        <translation>prestaciones</translation>
    </message>
    <message>
        <source>battery</source>
        <translation>batería</translation>
    </message>
    <message>
        <source>signal</source>
        <translation>señal</translation>
    </message>
    <message>
        <source>log in use</source>
        <translation>registro en uso</translation>
    </message>
    <message>
        <source>No logger was connected when this report was made: it tells of the file alone.</source>
        <translation>Al hacer este informe no había ningún equipo conectado: solo habla del archivo.</translation>
    </message>
    <message>
        <source>clock of the logger</source>
        <translation>reloj del equipo</translation>
    </message>
    <message>
        <source>time of this report</source>
        <translation>hora de este informe</translation>
    </message>
    <message>
        <source>file</source>
        <translation>archivo</translation>
    </message>
    <message>
        <source>hash of the configuration</source>
        <translation>huella de la configuración</translation>
    </message>
    <message>
        <source>Channels</source>
        <translation>Canales</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>Otros ajustes</translation>
    </message>
    <message>
        <source>Live values at sign-off</source>
        <translation>Valores en vivo a la entrega</translation>
    </message>
    <message>
        <source>channel</source>
        <translation>canal</translation>
    </message>
    <message>
        <source>value</source>
        <translation>valor</translation>
    </message>
    <message>
        <source>Measured channels without a name are left out.</source>
        <translation>Se omiten los canales medidos sin nombre.</translation>
    </message>
    <message>
        <source>Not sent to this logger</source>
        <translation>No se envía a este equipo</translation>
    </message>
    <message>
        <source>%1, another one</source>
        <translation>%1, otra distinta</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguna</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vacío</translation>
    </message>
    <message>
        <source>&amp;Compare</source>
        <translation>&amp;Comparar</translation>
    </message>
    <message>
        <source>&amp;with</source>
        <translation>c&amp;on</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Elegir</translation>
    </message>
    <message>
        <source>&amp;Take the selected over into the pages</source>
        <translation>&amp;Pasar lo seleccionado a las páginas</translation>
    </message>
    <message>
        <source>Take &amp;all over into the pages</source>
        <translation>Pasar &amp;todo a las páginas</translation>
    </message>
    <message>
        <source>the pages</source>
        <translation>las páginas</translation>
    </message>
    <message>
        <source>the logger</source>
        <translation>el equipo</translation>
    </message>
    <message>
        <source>safety copy %1</source>
        <translation>copia de seguridad %1</translation>
    </message>
    <message>
        <source>another file...</source>
        <translation>otro archivo...</translation>
    </message>
    <message>
        <source>The logger is being read.</source>
        <translation>Se está leyendo el equipo.</translation>
    </message>
    <message>
        <source>No session stands in which it could be read.</source>
        <translation>No hay ninguna sesión en la que se pueda leer.</translation>
    </message>
    <message>
        <source>The logger could not be read.</source>
        <translation>No se ha podido leer el equipo.</translation>
    </message>
    <message>
        <source>Choose what is to be compared.</source>
        <translation>Elija qué se va a comparar.</translation>
    </message>
    <message>
        <source>What is taken over comes from: %1.</source>
        <translation>Lo que se pasa viene de: %1.</translation>
    </message>
    <message>
        <source>The models are not the same, so nothing can be taken over.</source>
        <translation>Los modelos no son el mismo, así que no se puede pasar nada.</translation>
    </message>
    <message>
        <source>Compare pages, logger, files and safety copies</source>
        <translation>Comparar páginas, equipo, archivos y copias de seguridad</translation>
    </message>
    <message>
        <source>no day</source>
        <translation>ningún día</translation>
    </message>
    <message>
        <source>free</source>
        <translation>libre</translation>
    </message>
    <message>
        <source>Apply to several channels</source>
        <translation>Aplicar a varios canales</translation>
    </message>
    <message>
        <source>all but the name</source>
        <translation>todo menos el nombre</translation>
    </message>
    <message>
        <source>alarm %1 alone</source>
        <translation>solo la alarma %1</translation>
    </message>
    <message>
        <source>&amp;Copy:</source>
        <translation>&amp;Copiar:</translation>
    </message>
    <message>
        <source>&amp;What:</source>
        <translation>&amp;Qué:</translation>
    </message>
    <message>
        <source>&amp;Into:</source>
        <translation>&amp;En:</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Todos</translation>
    </message>
    <message>
        <source>&amp;None of them</source>
        <translation>&amp;Ninguno</translation>
    </message>
    <message>
        <source>A&amp;pply</source>
        <translation>A&amp;plicar</translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation>Copiar %1</translation>
    </message>
    <message>
        <source>Copy alarm %1 of %2</source>
        <translation>Copiar la alarma %1 de %2</translation>
    </message>
    <message>
        <source>Paste %1 as alarm %3 of %2</source>
        <translation>Pegar %1 como alarma %3 de %2</translation>
    </message>
    <message>
        <source>Paste %1 into %2</source>
        <translation>Pegar %1 en %2</translation>
    </message>
    <message>
        <source>Apply to several channels...</source>
        <translation>Aplicar a varios canales...</translation>
    </message>
    <message>
        <source>Paste %1 into the channels selected</source>
        <translation>Pegar %1 en los canales seleccionados</translation>
    </message>
    <message>
        <source>No channel is in front</source>
        <translation>No hay ningún canal delante</translation>
    </message>
    <message>
        <source>alarm %1 of %2</source>
        <translation>alarma %1 de %2</translation>
    </message>
    <message>
        <source>Copy and paste channels and alarms</source>
        <translation>Copiar y pegar canales y alarmas</translation>
    </message>
    <message>
        <source>Copy the list</source>
        <translation>Copiar la lista</translation>
    </message>
    <message>
        <source>Paste the list</source>
        <translation>Pegar la lista</translation>
    </message>
    <message>
        <source>EN</source>
        <translation>ES</translation>
    </message>
    <message>
        <source>The configuration is being read. The page shows it when it is whole.</source>
        <translation>Se está leyendo la configuración. La página la mostrará cuando esté completa.</translation>
    </message>
    <message>
        <source>The file is for the model %1, and the session that stands is with the model %2. Change the model?</source>
        <translation>El archivo es del modelo %1 y la sesión abierta es con el modelo %2. ¿Cambiar el modelo?</translation>
    </message>
    <message>
        <source>Reading the voice-call list</source>
        <translation>Leyendo la lista de voz</translation>
    </message>
    <message>
        <source>Writing the voice-call list</source>
        <translation>Escribiendo la lista de voz</translation>
    </message>
    <message>
        <source>A logger takes 250 numbers at the most, and macros 0 to 39. It may refuse the list. Write it?</source>
        <translation>Un equipo admite 250 números como máximo y las macros 0 a 39. Puede rechazar la lista. ¿Escribirla?</translation>
    </message>
    <message>
        <source>The list is empty: the logger loses all numbers that it holds. Write it?</source>
        <translation>La lista está vacía: el equipo perderá todos los números que tiene. ¿Escribirla?</translation>
    </message>
    <message numerus="yes">
        <source>%n of the numbers are no telephone numbers, the first of them &quot;%1&quot;. A logger may refuse them. Write the list?</source>
        <translation><numerusform>Uno de los números no es un teléfono: &quot;%1&quot;. El equipo puede rechazarlo. ¿Escribir la lista?</numerusform><numerusform>%n de los números no son teléfonos; el primero es &quot;%1&quot;. El equipo puede rechazarlos. ¿Escribir la lista?</numerusform></translation>
    </message>
    <message numerus="yes">
        <source>%n more</source>
        <translation><numerusform>%n más</numerusform><numerusform>%n más</numerusform></translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>Gráfica</translation>
    </message>
    <message>
        <source>Filter the values</source>
        <translation>Filtrar los valores</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>Values to plot</source>
        <translation>Valores que dibujar</translation>
    </message>
    <message>
        <source>Nothing has been read yet. Values come while a session with a logger is open.</source>
        <translation>Todavía no se ha leído nada. Los valores llegan mientras hay una sesión abierta con un equipo.</translation>
    </message>
    <message>
        <source>Plot of live values</source>
        <translation>Gráfica de valores en tiempo real</translation>
    </message>
    <message>
        <source>Drag, left and right: move in time. Wheel, + and -: zoom in time. Drag and wheel with Shift, up and down, page up and page down: the same of the values. Home: all. End: follow. 0 or double click: fit the values.</source>
        <translation>Arrastrar, izquierda y derecha: mover en el tiempo. Rueda, + y -: ampliar y reducir el tiempo. Arrastrar y rueda con Mayús, arriba y abajo, retroceder y avanzar página: lo mismo con los valores. Inicio: todo. Fin: seguir. 0 o doble clic: ajustar los valores.</translation>
    </message>
    <message>
        <source>&amp;Follow now</source>
        <translation>&amp;Seguir ahora</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Reducir</translation>
    </message>
    <message>
        <source>Fit values</source>
        <translation>Ajustar valores</translation>
    </message>
    <message>
        <source>Picture...</source>
        <translation>Imagen...</translation>
    </message>
    <message>
        <source>Values...</source>
        <translation>Valores...</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valores</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>En vivo</translation>
    </message>
    <message>
        <source>Plot live values, and accept the installation</source>
        <translation>Dibujar valores en tiempo real y dar por buena la instalación</translation>
    </message>
    <message>
        <source>Acceptance</source>
        <translation>Aceptación</translation>
    </message>
    <message>
        <source>point</source>
        <translation>punto</translation>
    </message>
    <message>
        <source>verdict</source>
        <translation>veredicto</translation>
    </message>
    <message>
        <source>note</source>
        <translation>nota</translation>
    </message>
    <message>
        <source>when</source>
        <translation>cuándo</translation>
    </message>
    <message>
        <source>pass</source>
        <translation>aceptado</translation>
    </message>
    <message>
        <source>fail</source>
        <translation>no aceptado</translation>
    </message>
    <message>
        <source>Inputs to try</source>
        <translation>Entradas que probar</translation>
    </message>
    <message>
        <source>Verdict</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>&amp;Pass</source>
        <translation>&amp;Correcto</translation>
    </message>
    <message>
        <source>F&amp;ail</source>
        <translation>&amp;Fallo</translation>
    </message>
    <message>
        <source>Take &amp;back</source>
        <translation>&amp;Retirar</translation>
    </message>
    <message>
        <source>&amp;Note:</source>
        <translation>&amp;Nota:</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Exportar...</translation>
    </message>
    <message>
        <source>%1 passed, %2 failed, %3 open</source>
        <translation>%1 correctas, %2 con fallo, %3 pendientes</translation>
    </message>
    <message>
        <source>No input is configured.</source>
        <translation>No hay ninguna entrada configurada.</translation>
    </message>
    <message>
        <source>Open a session to begin: results are kept by serial number.</source>
        <translation>Abra una sesión para empezar: los resultados se guardan por número de serie.</translation>
    </message>
    <message>
        <source>Logger %1: %2</source>
        <translation>Equipo %1: %2</translation>
    </message>
    <message>
        <source>Logger %1, %2: %3</source>
        <translation>Equipo %1, %2: %3</translation>
    </message>
    <message>
        <source>The last change could not be kept: %1</source>
        <translation>No se ha podido guardar el último cambio: %1</translation>
    </message>
    <message>
        <source>What was noted before cannot be read: %1</source>
        <translation>No se puede leer lo que se anotó antes: %1</translation>
    </message>
    <message>
        <source>it is damaged, or made by a newer program</source>
        <translation>está dañado o es de un programa más nuevo</translation>
    </message>
    <message>
        <source>open</source>
        <translation>pendiente</translation>
    </message>
    <message>
        <source>Check of the configuration</source>
        <translation>Comprobación de la configuración</translation>
    </message>
    <message>
        <source>kind</source>
        <translation>clase</translation>
    </message>
    <message>
        <source>place</source>
        <translation>lugar</translation>
    </message>
    <message>
        <source>finding</source>
        <translation>hallazgo</translation>
    </message>
    <message>
        <source>error</source>
        <translation>error</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>aviso</translation>
    </message>
    <message>
        <source>The check of the configuration found nothing.</source>
        <translation>La comprobación de la configuración no ha encontrado nada.</translation>
    </message>
    <message>
        <source>What was written</source>
        <translation>Lo escrito</translation>
    </message>
    <message>
        <source>what</source>
        <translation>qué</translation>
    </message>
    <message>
        <source>verified</source>
        <translation>verificado</translation>
    </message>
    <message>
        <source>hash</source>
        <translation>huella</translation>
    </message>
    <message>
        <source>ledger number</source>
        <translation>número de registro</translation>
    </message>
    <message>
        <source>Signatures</source>
        <translation>Firmas</translation>
    </message>
    <message>
        <source>For the contractor: place, date, name</source>
        <translation>Por el instalador: lugar, fecha, nombre</translation>
    </message>
    <message>
        <source>For the customer: place, date, name</source>
        <translation>Por el cliente: lugar, fecha, nombre</translation>
    </message>
    <message>
        <source>Telephones</source>
        <translation>Teléfonos</translation>
    </message>
    <message>
        <source>priority</source>
        <translation>prioridad</translation>
    </message>
    <message>
        <source>privilege</source>
        <translation>privilegio</translation>
    </message>
    <message>
        <source>gets the alarms of</source>
        <translation>recibe las alarmas de</translation>
    </message>
    <message>
        <source>all channels</source>
        <translation>todos los canales</translation>
    </message>
    <message>
        <source>these alone:</source>
        <translation>solo estos:</translation>
    </message>
    <message>
        <source>all but these:</source>
        <translation>todos salvo:</translation>
    </message>
    <message>
        <source>No telephone is told anything.</source>
        <translation>No se avisa a ningún teléfono.</translation>
    </message>
    <message>
        <source>SMS</source>
        <translation>SMS</translation>
    </message>
    <message>
        <source>SMS and voice</source>
        <translation>SMS y voz</translation>
    </message>
    <message>
        <source>nobody</source>
        <translation>nadie</translation>
    </message>
    <message>
        <source>Alarms</source>
        <translation>Alarmas</translation>
    </message>
    <message>
        <source>alarm</source>
        <translation>alarma</translation>
    </message>
    <message>
        <source>told by</source>
        <translation>avisa por</translation>
    </message>
    <message>
        <source>told to</source>
        <translation>avisa a</translation>
    </message>
    <message>
        <source>Accepted with a configuration that was in no file.</source>
        <translation>Aceptado con una configuración que no estaba en ningún archivo.</translation>
    </message>
    <message>
        <source>Accepted with another configuration: %1</source>
        <translation>Aceptado con otra configuración: %1</translation>
    </message>
    <message>
        <source>No alarm is enabled.</source>
        <translation>No hay ninguna alarma habilitada.</translation>
    </message>
    <message>
        <source>Who is told what</source>
        <translation>A quién se avisa de qué</translation>
    </message>
    <message>
        <source>timer</source>
        <translation>temporizador</translation>
    </message>
    <message>
        <source>runs</source>
        <translation>ejecuta</translation>
    </message>
    <message>
        <source>if</source>
        <translation>si</translation>
    </message>
    <message>
        <source>Timers in a week</source>
        <translation>Temporizadores en una semana</translation>
    </message>
    <message>
        <source>unknown to this model</source>
        <translation>desconocida en este modelo</translation>
    </message>
    <message>
        <source>configuration</source>
        <translation>configuración</translation>
    </message>
    <message>
        <source>time</source>
        <translation>hora</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Show what was done with loggers</source>
        <translation>Mostrar lo que se hizo con los registradores</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>Begun</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Work</source>
        <translation>Trabajo</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Puerto</translation>
    </message>
    <message>
        <source>What</source>
        <translation>Detalle</translation>
    </message>
    <message>
        <source>Serial number, date, work, file</source>
        <translation>Número de serie, fecha, trabajo, archivo</translation>
    </message>
    <message>
        <source>The ledger cannot be read: %1</source>
        <translation>No se puede leer el libro de registro: %1</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>Co&amp;mpare</source>
        <translation>Co&amp;mparar</translation>
    </message>
    <message>
        <source>&amp;Save to a file</source>
        <translation>&amp;Guardar en un archivo</translation>
    </message>
    <message>
        <source>cut off</source>
        <translation>cortado</translation>
    </message>
    <message>
        <source>under way</source>
        <translation>en curso</translation>
    </message>
    <message>
        <source>done</source>
        <translation>hecho</translation>
    </message>
    <message>
        <source>failed</source>
        <translation>fallido</translation>
    </message>
    <message>
        <source>session</source>
        <translation>sesión</translation>
    </message>
    <message>
        <source>reading</source>
        <translation>lectura</translation>
    </message>
    <message>
        <source>read back: the same</source>
        <translation>leído de vuelta: idéntico</translation>
    </message>
    <message>
        <source>read back: different</source>
        <translation>leído de vuelta: distinto</translation>
    </message>
    <message>
        <source>not read back</source>
        <translation>no leído de vuelta</translation>
    </message>
    <message>
        <source>writing</source>
        <translation>escritura</translation>
    </message>
    <message>
        <source>verification</source>
        <translation>verificación</translation>
    </message>
    <message>
        <source>saving</source>
        <translation>guardado</translation>
    </message>
    <message>
        <source>voice reading</source>
        <translation>lectura de voz</translation>
    </message>
    <message>
        <source>voice list</source>
        <translation>lista de voz</translation>
    </message>
    <message>
        <source>clock</source>
        <translation>reloj</translation>
    </message>
    <message>
        <source>total</source>
        <translation>totalizador</translation>
    </message>
    <message>
        <source>new number</source>
        <translation>número nuevo</translation>
    </message>
    <message>
        <source>the board did not confirm the first order, so the checks behind it did not run</source>
        <translation>el equipo no confirmó la primera orden, y las comprobaciones que dependen de ella no se hicieron</translation>
    </message>
    <message>
        <source>its record was not kept</source>
        <translation>su registro no se guardó</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>se paró</translation>
    </message>
    <message>
        <source>broken off</source>
        <translation>se cortó la línea</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Medido</translation>
    </message>
    <message>
        <source>not 0, 2..8</source>
        <translation>ni 0 ni 2..8</translation>
    </message>
    <message>
        <source>test run</source>
        <translation>prueba de fábrica</translation>
    </message>
    <message>
        <source>Comparison with entry %1</source>
        <translation>Comparación con la entrada %1</translation>
    </message>
    <message>
        <source>In the entry</source>
        <translation>En la entrada</translation>
    </message>
    <message>
        <source>Nothing is kept in the ledger: %1</source>
        <translation>No se guarda nada en el libro de registro: %1</translation>
    </message>
    <message>
        <source>As soon as that logger is connected, ways out are offered.</source>
        <translation>En cuanto se conecte ese registrador se ofrecerán salidas.</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Más tarde</translation>
    </message>
    <message>
        <source>Read and &amp;compare</source>
        <translation>Leer y &amp;comparar</translation>
    </message>
    <message>
        <source>&amp;Write the new one</source>
        <translation>&amp;Escribir la nueva</translation>
    </message>
    <message>
        <source>&amp;Put the former one back</source>
        <translation>&amp;Reponer la anterior</translation>
    </message>
    <message>
        <source>Do &amp;not tell again</source>
        <translation>&amp;No avisar más</translation>
    </message>
    <message>
        <source>Write all the same?</source>
        <translation>¿Escribir de todos modos?</translation>
    </message>
    <message>
        <source>the configuration was read from the logger %1, and the logger that answers is %2</source>
        <translation>la configuración se leyó del registrador %1, y el que responde es %2</translation>
    </message>
    <message>
        <source>id</source>
        <translation>número</translation>
    </message>
    <message>
        <source>about</source>
        <translation>acerca de</translation>
    </message>
    <message>
        <source>state</source>
        <translation>estado</translation>
    </message>
    <message>
        <source>closing</source>
        <translation>toma pedida</translation>
    </message>
    <message>
        <source>settled</source>
        <translation>zanjado</translation>
    </message>
    <message>
        <source>began</source>
        <translation>inicio</translation>
    </message>
    <message>
        <source>milliseconds</source>
        <translation>milisegundos</translation>
    </message>
    <message>
        <source>user</source>
        <translation>usuario</translation>
    </message>
    <message>
        <source>machine</source>
        <translation>ordenador</translation>
    </message>
    <message>
        <source>process</source>
        <translation>proceso</translation>
    </message>
    <message>
        <source>port</source>
        <translation>puerto</translation>
    </message>
    <message>
        <source>phone</source>
        <translation>teléfono</translation>
    </message>
    <message>
        <source>serial</source>
        <translation>número de serie</translation>
    </message>
    <message>
        <source>content</source>
        <translation>contenido</translation>
    </message>
    <message>
        <source>former</source>
        <translation>contenido anterior</translation>
    </message>
    <message>
        <source>copy</source>
        <translation>copia</translation>
    </message>
    <message>
        <source>steps</source>
        <translation>pasos</translation>
    </message>
    <message>
        <source>utcOffset</source>
        <translation>diferencia con UTC</translation>
    </message>
    <message>
        <source>attempts</source>
        <translation>intentos</translation>
    </message>
    <message>
        <source>fault</source>
        <translation>fallo</translation>
    </message>
    <message>
        <source>detail</source>
        <translation>detalle</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Detalles</translation>
    </message>
    <message>
        <source>the configuration was read from the logger %1, and the logger that answers has not told its serial number</source>
        <translation>la configuración se leyó del registrador %1, y el que responde no ha dicho su número de serie</translation>
    </message>
    <message>
        <source>the file was last used with the logger %1 on %2, and the logger that answers has not told its serial number</source>
        <translation>el archivo se usó por última vez con el registrador %1 el %2, y el que responde no ha dicho su número de serie</translation>
    </message>
    <message>
        <source>it holds its former configuration</source>
        <translation>contiene su configuración anterior</translation>
    </message>
    <message>
        <source>it was read on %1</source>
        <translation>se leyó el %1</translation>
    </message>
    <message>
        <source>it was read on %1, and told neither of the two to the letter</source>
        <translation>se leyó el %1, y no dijo ninguna de las dos al pie de la letra</translation>
    </message>
    <message>
        <source>Nothing was written: what the logger held before is not kept.</source>
        <translation>No se escribió nada: no se conserva lo que el registrador contenía antes.</translation>
    </message>
    <message>
        <source>Nothing was written: the pages show another configuration.</source>
        <translation>No se escribió nada: las páginas muestran otra configuración.</translation>
    </message>
    <message>
        <source>in use by a program of another user</source>
        <translation>lo usa un programa de otro usuario</translation>
    </message>
    <message>
        <source>What is as in an empty configuration is not listed.</source>
        <translation>Lo que es como en una configuración vacía no figura.</translation>
    </message>
    <message>
        <source>Read on %1</source>
        <translation>Leído el %1</translation>
    </message>
    <message>
        <source>the configuration</source>
        <translation>la configuración</translation>
    </message>
    <message>
        <source>it is what was last written to or read from the logger (entry %1)</source>
        <translation>es lo último que se escribió en el registrador o se leyó de él (asiento %1)</translation>
    </message>
    <message>
        <source>it is not what was last written to or read from the logger (entry %1)</source>
        <translation>no es lo último que se escribió en el registrador o se leyó de él (asiento %1)</translation>
    </message>
    <message>
        <source>what the logger holds is not known since the writing of entry %1</source>
        <translation>no se sabe qué contiene el registrador desde la escritura del asiento %1</translation>
    </message>
    <message>
        <source>the ledger does not know what the logger holds</source>
        <translation>el libro de registro no sabe qué contiene el registrador</translation>
    </message>
    <message>
        <source>outcome not known</source>
        <translation>resultado desconocido</translation>
    </message>
    <message>
        <source>cut off before it took effect</source>
        <translation>cortada antes de tener efecto</translation>
    </message>
    <message>
        <source>the file was last used with the logger %1 on %2, and the logger that answers is %3</source>
        <translation>el archivo se usó por última vez con el registrador %1 el %2, y el que responde es %3</translation>
    </message>
    <message>
        <source>the file was last used with a firmware of the features %1, and the logger that answers has %2</source>
        <translation>el archivo se usó por última vez con un firmware de prestaciones %1, y el registrador que responde tiene %2</translation>
    </message>
    <message>
        <source>the logger holds what the file has never held: it was changed since %1</source>
        <translation>el registrador contiene lo que el archivo nunca tuvo: se cambió desde %1</translation>
    </message>
    <message>
        <source>the logger was changed by others since the file was last used with it on %1: %2 field(s) differ, the first %3 in %4</source>
        <translation>otros han cambiado el registrador desde que el archivo se usó con él el %1: difieren %2 campos, el primero %3 en %4</translation>
    </message>
    <message>
        <source>writing the voice-call list to the %1 %2, begun on %3, was interrupted</source>
        <translation>se interrumpió la escritura de la lista de voz en el %1 %2, iniciada el %3</translation>
    </message>
    <message>
        <source>writing the firmware to the %1 %2, begun on %3, was interrupted</source>
        <translation>se interrumpió la escritura del firmware en el %1 %2, iniciada el %3</translation>
    </message>
    <message>
        <source>reading back what was written to the %1 %2, begun on %3, was interrupted</source>
        <translation>se interrumpió la relectura de lo escrito en el %1 %2, iniciado el %3</translation>
    </message>
    <message>
        <source>writing the configuration to the %1 %2, begun on %3, was interrupted</source>
        <translation>se interrumpió la escritura de la configuración en el %1 %2, iniciada el %3</translation>
    </message>
    <message>
        <source>its list is most probably not whole</source>
        <translation>lo más probable es que su lista no esté completa</translation>
    </message>
    <message>
        <source>writing begins with erasing the former one</source>
        <translation>la escritura empieza por borrar la anterior</translation>
    </message>
    <message>
        <source>whether it holds a whole firmware is not known</source>
        <translation>no se sabe si contiene un firmware completo</translation>
    </message>
    <message>
        <source>a firmware is written over the former one</source>
        <translation>un firmware se escribe sobre el anterior</translation>
    </message>
    <message>
        <source>it most probably holds its former configuration</source>
        <translation>lo más probable es que contenga su configuración anterior</translation>
    </message>
    <message>
        <source>it had not been asked to take the new one over</source>
        <translation>aún no se le había pedido que adoptara la nueva</translation>
    </message>
    <message>
        <source>it most probably holds the new configuration</source>
        <translation>lo más probable es que contenga la configuración nueva</translation>
    </message>
    <message>
        <source>it has said that it took it over, which is not verified</source>
        <translation>confirmó que la adoptaba, lo que no está verificado</translation>
    </message>
    <message>
        <source>whether it holds its former or the new configuration is not known</source>
        <translation>no se sabe si contiene su configuración anterior o la nueva</translation>
    </message>
    <message>
        <source>it had been asked to take the new one over, and its answer is not known</source>
        <translation>se le había pedido que adoptara la nueva, y no se conoce su respuesta</translation>
    </message>
    <message>
        <source>the logger holds the new configuration</source>
        <translation>el registrador contiene la configuración nueva</translation>
    </message>
    <message>
        <source>the logger holds its former configuration</source>
        <translation>el registrador contiene su configuración anterior</translation>
    </message>
    <message>
        <source>the logger holds neither its former nor the new configuration</source>
        <translation>el registrador no contiene ni su configuración anterior ni la nueva</translation>
    </message>
    <message>
        <source>%1 statements</source>
        <translation>%1 sentencias</translation>
    </message>
    <message>
        <source>%1 records</source>
        <translation>%1 registros</translation>
    </message>
    <message>
        <source>not read</source>
        <translation>sin leer</translation>
    </message>
    <message>
        <source>last read at %1</source>
        <translation>última lectura a las %1</translation>
    </message>
    <message>
        <source>inside</source>
        <translation>dentro</translation>
    </message>
    <message>
        <source>within the hysteresis</source>
        <translation>dentro de la histéresis</translation>
    </message>
    <message>
        <source>below the minimum</source>
        <translation>por debajo del mínimo</translation>
    </message>
    <message>
        <source>above the maximum</source>
        <translation>por encima del máximo</translation>
    </message>
    <message>
        <source>Alarm limits of %1</source>
        <translation>Límites de alarma de %1</translation>
    </message>
    <message>
        <source>%1 to %2, hysteresis %3</source>
        <translation>de %1 a %2, histéresis %3</translation>
    </message>
    <message>
        <source>Switch output %1 over</source>
        <translation>Cambiar el estado de la salida %1</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Activa</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>Inactiva</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Ficheros</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualización</translation>
    </message>
    <message>
        <source>The logger has no firmware from the erasing of its flash until its lamp blinks again. Keep it powered and connected so long, whatever happens.</source>
        <translation>El equipo no tiene firmware desde que se borra su flash hasta que su led vuelve a parpadear. Manténgalo alimentado y conectado hasta entonces, pase lo que pase.</translation>
    </message>
    <message>
        <source>Find in the text</source>
        <translation>Buscar en el texto</translation>
    </message>
    <message>
        <source>Nothing is read ahead of it: what others have changed in the logger is written over unseen.</source>
        <translation>No se lee nada antes: lo que otros hayan cambiado en el equipo se sobrescribe sin verlo.</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>No se encuentra</translation>
    </message>
    <message>
        <source>Command:</source>
        <translation>Comando:</translation>
    </message>
    <message>
        <source>Frame, with its &quot;#&quot;:</source>
        <translation>Trama, con su «#»:</translation>
    </message>
    <message>
        <source>Console</source>
        <translation>Consola</translation>
    </message>
    <message>
        <source>Updating</source>
        <translation>Actualizando</translation>
    </message>
    <message>
        <source>The flash of the logger is erased. Leaving now leaves it without firmware.</source>
        <translation>La flash del equipo está borrada. Si sale ahora, el equipo se queda sin firmware.</translation>
    </message>
    <message>
        <source>The flash of the logger may be erased. Leaving now may leave it without firmware.</source>
        <translation>Puede que la flash del equipo esté borrada. Si sale ahora, puede que el equipo se quede sin firmware.</translation>
    </message>
    <message>
        <source>the logger gave no sign of life by octet %1 of the image</source>
        <translation>el equipo no dio señales de vida hasta el octeto %1 de la imagen</translation>
    </message>
    <message>
        <source>the logger&apos;s flash is erased and holds no firmware: leave it powered and connected, and start the update again with the same files</source>
        <translation>la flash del equipo está borrada y no contiene firmware: déjelo alimentado y conectado, y vuelva a iniciar la actualización con los mismos ficheros</translation>
    </message>
    <message>
        <source>the logger&apos;s flash may be erased: leave it powered and connected; if it tells of itself in a new session, it is not; else start the update again with the same files</source>
        <translation>puede que la flash del equipo esté borrada: déjelo alimentado y conectado; si en una nueva sesión da sus datos, no lo está; si no, vuelva a iniciar la actualización con los mismos ficheros</translation>
    </message>
    <message>
        <source>nothing of the image was sent: if the logger still answers, its firmware is as it was</source>
        <translation>no se ha enviado nada de la imagen: si el equipo todavía responde, su firmware es el de antes</translation>
    </message>
    <message>
        <source>Band</source>
        <translation>Banda</translation>
    </message>
    <message>
        <source>good</source>
        <translation>correcto</translation>
    </message>
    <message>
        <source>FAILED</source>
        <translation>FALLO</translation>
    </message>
    <message>
        <source>Measured values</source>
        <translation>Valores medidos</translation>
    </message>
    <message>
        <source>Open</source>
        <comment>the state of the link</comment>
        <translation>Sesión abierta</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Más</translation>
    </message>
    <message>
        <source>Tools that are wanted now and then</source>
        <translation>Herramientas de uso menos frecuente</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
</context>
</TS>
