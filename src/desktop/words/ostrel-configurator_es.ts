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
        <source>There is no device at %1. Is the adapter plugged in?</source>
        <translation>No hay ningún dispositivo en %1. ¿Está conectado el adaptador?</translation>
    </message>
    <message>
        <source>%1 is in use by another program. Close that program and try again.</source>
        <translation>Otro programa está usando %1. Ciérrelo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>You have no permission to open %1. Join the group of serial devices with &quot;sudo usermod -aG dialout $USER&quot;, then log out and in again.</source>
        <translation>No tiene permiso para abrir %1. Únase al grupo de los dispositivos serie con &quot;sudo usermod -aG dialout $USER&quot;, cierre la sesión y vuelva a entrar.</translation>
    </message>
    <message>
        <source>%1 could not be opened as a serial port.</source>
        <translation>%1 no se ha podido abrir como puerto serie.</translation>
    </message>
    <message>
        <source>No modem answers at %1.</source>
        <translation>No responde ningún módem en %1.</translation>
    </message>
    <message>
        <source>The call was not answered.</source>
        <translation>Nadie ha contestado a la llamada.</translation>
    </message>
    <message>
        <source>The call failed. The modem says: %1</source>
        <translation>La llamada ha fallado. El módem dice: %1</translation>
    </message>
    <message>
        <source>The port works, but no logger answers at %1. Check cable and supply.</source>
        <translation>El puerto funciona, pero ningún equipo responde en %1. Compruebe el cable y la alimentación.</translation>
    </message>
    <message>
        <source>The logger fell silent at step %1.</source>
        <translation>El equipo dejó de responder en el paso %1.</translation>
    </message>
    <message>
        <source>Damaged lines arrived (bad checksums) at step %1. Check cable and earthing.</source>
        <translation>Llegaron líneas dañadas (sumas erróneas) en el paso %1. Compruebe el cable y la toma de tierra.</translation>
    </message>
    <message>
        <source>Record %1 was expected, and this arrived: %2</source>
        <translation>Se esperaba el registro %1 y llegó esto: %2</translation>
    </message>
    <message>
        <source>The logger sent an empty configuration.</source>
        <translation>El equipo envió una configuración vacía.</translation>
    </message>
    <message>
        <source>Record %1 is about a channel that does not exist: %2</source>
        <translation>El registro %1 es de un canal que no existe: %2</translation>
    </message>
    <message>
        <source>The logger refused statement %1: %2</source>
        <translation>El equipo rechazó la sentencia %1: %2</translation>
    </message>
    <message>
        <source>The logger did not take the configuration over. It keeps the former one. %1</source>
        <translation>El equipo no ha aceptado la configuración. Conserva la anterior. %1</translation>
    </message>
    <message>
        <source>The logger answered something else: %1</source>
        <translation>El equipo ha respondido otra cosa: %1</translation>
    </message>
    <message>
        <source>Another dialogue with the logger is under way.</source>
        <translation>Hay otro diálogo con el equipo en curso.</translation>
    </message>
    <message>
        <source>The logger talks without coming to an end.</source>
        <translation>El equipo habla sin llegar al final.</translation>
    </message>
    <message>
        <source>The line at %1 is held. Is the logger switched on, and has the cable RTS and CTS?</source>
        <translation>La línea de %1 está retenida. ¿Está encendido el equipo y tiene el cable RTS y CTS?</translation>
    </message>
    <message>
        <source>%1 has gone. Was the adapter unplugged?</source>
        <translation>%1 ha desaparecido. ¿Se ha desconectado el adaptador?</translation>
    </message>
    <message>
        <source>The port was closed in the middle of the dialogue.</source>
        <translation>El puerto se cerró en mitad del diálogo.</translation>
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
</context>
</TS>
