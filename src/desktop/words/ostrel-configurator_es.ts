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
        <source>This is not a number of the kind expected here. It counts as %1.</source>
        <translation>No es un número del tipo que aquí se espera. Vale como %1.</translation>
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
    <message>
        <source>%1 does not exist any more.</source>
        <translation>%1 ya no existe.</translation>
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
        <source>What went wrong</source>
        <translation>Qué ha fallado</translation>
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
        <source>Break off</source>
        <translation>Interrumpir</translation>
    </message>
    <message>
        <source>Give up opening the session</source>
        <translation>Dejar de abrir la sesión</translation>
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
        <source>This page does not exist in this version yet.</source>
        <translation>Esta página aún no existe en esta versión.</translation>
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
        <source>A transfer is under way. Leaving breaks it off, and changes that are neither saved nor sent are lost.</source>
        <translation>Hay una transferencia en curso. Al salir se interrumpe, y los cambios que no se han guardado ni enviado se pierden.</translation>
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
        <source>Open</source>
        <comment>the state of the link</comment>
        <translation>Sesión abierta</translation>
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
        <source>The file is for the model %1, and a session with a %2 stands. Change the model?</source>
        <translation>El archivo es del modelo %1, y hay una sesión abierta con un %2. ¿Cambiar el modelo?</translation>
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
        <source>the pages show again what was there before the reading</source>
        <translation>las páginas vuelven a mostrar lo que había antes de la lectura</translation>
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
        <source>the last reading of the logger failed</source>
        <translation>la última lectura del registrador falló</translation>
    </message>
    <message>
        <source>nothing has been read from a logger or opened since the program started</source>
        <translation>no se ha leído ni abierto nada desde que arrancó el programa</translation>
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
</context>
</TS>
