<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Vex</name>
    <message>
        <source>Convert all to</source>
        <translation>Convertir todo a</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>recently</source>
        <translation>Recientes</translation>
    </message>
    <message>
        <source>video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>device</source>
        <translation>Dispositivo</translation>
    </message>
    <message>
        <source>socialVideo</source>
        <translation>Vídeo web</translation>
    </message>
    <message>
        <source>Format search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Sin datos</translation>
    </message>
    <message>
        <source>Keep Orignal</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Smart Fit</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>The selected format cannot be deleted because it is in use.</source>
        <translation>El formato elegido está en uso y no se puede eliminar.</translation>
    </message>
    <message>
        <source>The format you searched for was not found</source>
        <translation>No se encontró el formato buscado</translation>
    </message>
    <message>
        <source>Preference</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>custom</source>
        <translation>propio</translation>
    </message>
    <message>
        <source>custom preset</source>
        <translation>propio</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message>
        <source>High Quality</source>
        <translation>Calidad alta</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Low Quality</source>
        <translation>Calidad baja</translation>
    </message>
    <message>
        <source>Middle Quality</source>
        <translation>Calidad media</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>Códec</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>Fotogramas/s</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>Bitrate</source>
        <translation>Tasa de bits</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canales</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Muestreo</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Crear</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Converter</source>
        <translation>Conversor</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Add files</source>
        <translation>Añadir archivos</translation>
    </message>
    <message>
        <source>Choose folder</source>
        <translation>Elegir carpeta</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Drop video or audio files here</source>
        <translation>Suelta aquí archivos de vídeo o audio</translation>
    </message>
    <message>
        <source>Then choose a format and press Convert All</source>
        <translation>Después elige un formato y pulsa «Convertir todo»</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Convertir</translation>
    </message>
    <message>
        <source>Convert All</source>
        <translation>Convertir todo</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Stop All</source>
        <translation>Detener todo</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Reintentar</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Quitar de la lista</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>Same folder as the source</source>
        <translation>Carpeta del original</translation>
    </message>
    <message>
        <source>Save to</source>
        <translation>Guardar en</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Reading …</source>
        <translation>Leyendo…</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>Converting …</source>
        <translation>Convirtiendo…</translation>
    </message>
    <message>
        <source>Converted</source>
        <translation>Convertido</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Detenido</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>quedan %1</translation>
    </message>
    <message>
        <source>The window can&apos;t be made</source>
        <translation>No se puede crear la ventana</translation>
    </message>
    <message>
        <source>Same as source</source>
        <translation>Como el origen</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Voz</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Sin pérdida</translation>
    </message>
    <message>
        <source>CD Quality</source>
        <translation>Calidad de CD</translation>
    </message>
    <message>
        <source>32 bit float</source>
        <translation>32 bits flotante</translation>
    </message>
    <message>
        <source>32 bit</source>
        <translation>32 bits</translation>
    </message>
    <message>
        <source>24 bit</source>
        <translation>24 bits</translation>
    </message>
    <message>
        <source>16 bit</source>
        <translation>16 bits</translation>
    </message>
    <message>
        <source>Surround 5.1</source>
        <translation>Envolvente 5.1</translation>
    </message>
    <message>
        <source>Wideband</source>
        <translation>Banda ancha</translation>
    </message>
    <message>
        <source>2K</source>
        <translation>2K</translation>
    </message>
    <message>
        <source>44100 Hz</source>
        <translation>44100 Hz</translation>
    </message>
    <message>
        <source>48000 Hz</source>
        <translation>48000 Hz</translation>
    </message>
    <message>
        <source>4K</source>
        <translation>4K</translation>
    </message>
    <message>
        <source>4K TV</source>
        <translation>TV 4K</translation>
    </message>
    <message>
        <source>4K TV MKV</source>
        <translation>TV 4K MKV</translation>
    </message>
    <message>
        <source>96000 Hz</source>
        <translation>96000 Hz</translation>
    </message>
    <message>
        <source>A HD 720P</source>
        <translation>A HD 720P</translation>
    </message>
    <message>
        <source>Apple TV 4K</source>
        <translation>Apple TV 4K</translation>
    </message>
    <message>
        <source>Apple TV HD 1080P</source>
        <translation>Apple TV HD 1080P</translation>
    </message>
    <message>
        <source>Apple TV HD 720P</source>
        <translation>Apple TV HD 720P</translation>
    </message>
    <message>
        <source>BRAVIA 4K</source>
        <translation>BRAVIA 4K</translation>
    </message>
    <message>
        <source>BRAVIA HD 1080P</source>
        <translation>BRAVIA HD 1080P</translation>
    </message>
    <message>
        <source>BRAVIA HD 720P</source>
        <translation>BRAVIA HD 720P</translation>
    </message>
    <message>
        <source>CIF 288P</source>
        <translation>CIF 288P</translation>
    </message>
    <message>
        <source>Chromecast 4K</source>
        <translation>Chromecast 4K</translation>
    </message>
    <message>
        <source>Chromecast HD 1080P</source>
        <translation>Chromecast HD 1080P</translation>
    </message>
    <message>
        <source>Clip Portrait HD 1080P</source>
        <translation>Clip vertical HD 1080P</translation>
    </message>
    <message>
        <source>DivX TV SD 576P</source>
        <translation>DivX TV SD 576P</translation>
    </message>
    <message>
        <source>Echo Show HD 720P</source>
        <translation>Echo Show HD 720P</translation>
    </message>
    <message>
        <source>Find X 4K</source>
        <translation>Find X 4K</translation>
    </message>
    <message>
        <source>Find X HD 1080P</source>
        <translation>Find X HD 1080P</translation>
    </message>
    <message>
        <source>Fire 7 SD 576P</source>
        <translation>Fire 7 SD 576P</translation>
    </message>
    <message>
        <source>Fire HD 10 HD 1080P</source>
        <translation>Fire HD 10 HD 1080P</translation>
    </message>
    <message>
        <source>Fire HD 8 HD 720P</source>
        <translation>Fire HD 8 HD 720P</translation>
    </message>
    <message>
        <source>Fire Max 11 HD 1080P</source>
        <translation>Fire Max 11 HD 1080P</translation>
    </message>
    <message>
        <source>Fire TV 4K</source>
        <translation>Fire TV 4K</translation>
    </message>
    <message>
        <source>Fire TV Stick HD 1080P</source>
        <translation>Fire TV Stick HD 1080P</translation>
    </message>
    <message>
        <source>Full HD TV</source>
        <translation>TV Full HD</translation>
    </message>
    <message>
        <source>Full HD TV TS</source>
        <translation>TV Full HD TS</translation>
    </message>
    <message>
        <source>G Series HD 1080P</source>
        <translation>G Series HD 1080P</translation>
    </message>
    <message>
        <source>Galaxy A HD 1080P</source>
        <translation>Galaxy A HD 1080P</translation>
    </message>
    <message>
        <source>Galaxy A HD 720P</source>
        <translation>Galaxy A HD 720P</translation>
    </message>
    <message>
        <source>Galaxy S 4K</source>
        <translation>Galaxy S 4K</translation>
    </message>
    <message>
        <source>Galaxy S HD 1080P</source>
        <translation>Galaxy S HD 1080P</translation>
    </message>
    <message>
        <source>Galaxy Tab 2K</source>
        <translation>Galaxy Tab 2K</translation>
    </message>
    <message>
        <source>Galaxy Tab HD 1080P</source>
        <translation>Galaxy Tab HD 1080P</translation>
    </message>
    <message>
        <source>Galaxy Tab HD 720P</source>
        <translation>Galaxy Tab HD 720P</translation>
    </message>
    <message>
        <source>HD 1080P</source>
        <translation>HD 1080P</translation>
    </message>
    <message>
        <source>HD 720P</source>
        <translation>HD 720P</translation>
    </message>
    <message>
        <source>HD Ready TV</source>
        <translation>TV HD Ready</translation>
    </message>
    <message>
        <source>K Series HD 720P</source>
        <translation>K Series HD 720P</translation>
    </message>
    <message>
        <source>Mate 4K</source>
        <translation>Mate 4K</translation>
    </message>
    <message>
        <source>MatePad 2K</source>
        <translation>MatePad 2K</translation>
    </message>
    <message>
        <source>MatePad HD 1080P</source>
        <translation>MatePad HD 1080P</translation>
    </message>
    <message>
        <source>NTSC 240P</source>
        <translation>NTSC 240P</translation>
    </message>
    <message>
        <source>NTSC 480P</source>
        <translation>NTSC 480P</translation>
    </message>
    <message>
        <source>Nest Hub HD 720P</source>
        <translation>Nest Hub HD 720P</translation>
    </message>
    <message>
        <source>New 3DS SD 240P</source>
        <translation>New 3DS SD 240P</translation>
    </message>
    <message>
        <source>OLED TV 4K</source>
        <translation>OLED TV 4K</translation>
    </message>
    <message>
        <source>OPPO Pad 2K</source>
        <translation>OPPO Pad 2K</translation>
    </message>
    <message>
        <source>P HD 1080P</source>
        <translation>P HD 1080P</translation>
    </message>
    <message>
        <source>PAL 288P</source>
        <translation>PAL 288P</translation>
    </message>
    <message>
        <source>PAL 576P</source>
        <translation>PAL 576P</translation>
    </message>
    <message>
        <source>PS Vita HD 720P</source>
        <translation>PS Vita HD 720P</translation>
    </message>
    <message>
        <source>PSP SD 272P</source>
        <translation>PSP SD 272P</translation>
    </message>
    <message>
        <source>Pixel 4K</source>
        <translation>Pixel 4K</translation>
    </message>
    <message>
        <source>Pixel 4K WEBM</source>
        <translation>Pixel 4K WEBM</translation>
    </message>
    <message>
        <source>Pixel HD 1080P</source>
        <translation>Pixel HD 1080P</translation>
    </message>
    <message>
        <source>Pixel Tablet 2K</source>
        <translation>Pixel Tablet 2K</translation>
    </message>
    <message>
        <source>PlayStation 3 HD 1080P</source>
        <translation>PlayStation 3 HD 1080P</translation>
    </message>
    <message>
        <source>PlayStation 3 HD 720P</source>
        <translation>PlayStation 3 HD 720P</translation>
    </message>
    <message>
        <source>PlayStation 4 HD 1080P</source>
        <translation>PlayStation 4 HD 1080P</translation>
    </message>
    <message>
        <source>PlayStation 4 HD 1080P MKV</source>
        <translation>PlayStation 4 HD 1080P MKV</translation>
    </message>
    <message>
        <source>PlayStation 4 HD 720P</source>
        <translation>PlayStation 4 HD 720P</translation>
    </message>
    <message>
        <source>PlayStation 5 4K</source>
        <translation>PlayStation 5 4K</translation>
    </message>
    <message>
        <source>PlayStation 5 HD 1080P</source>
        <translation>PlayStation 5 HD 1080P</translation>
    </message>
    <message>
        <source>Portrait 4:5</source>
        <translation>Vertical 4:5</translation>
    </message>
    <message>
        <source>Portrait 4K</source>
        <translation>Vertical 4K</translation>
    </message>
    <message>
        <source>Portrait HD 1080P</source>
        <translation>Vertical HD 1080P</translation>
    </message>
    <message>
        <source>Portrait HD 1200P</source>
        <translation>Vertical HD 1200P</translation>
    </message>
    <message>
        <source>Portrait HD 720P</source>
        <translation>Vertical HD 720P</translation>
    </message>
    <message>
        <source>Portrait SD 540P</source>
        <translation>Vertical SD 540P</translation>
    </message>
    <message>
        <source>QCIF 144P</source>
        <translation>QCIF 144P</translation>
    </message>
    <message>
        <source>QVGA 240P</source>
        <translation>QVGA 240P</translation>
    </message>
    <message>
        <source>Redmi HD 720P</source>
        <translation>Redmi HD 720P</translation>
    </message>
    <message>
        <source>Redmi Note HD 1080P</source>
        <translation>Redmi Note HD 1080P</translation>
    </message>
    <message>
        <source>Reels HD 1080P</source>
        <translation>Reels HD 1080P</translation>
    </message>
    <message>
        <source>Reels HD 720P</source>
        <translation>Reels HD 720P</translation>
    </message>
    <message>
        <source>Reno HD 1080P</source>
        <translation>Reno HD 1080P</translation>
    </message>
    <message>
        <source>Roku Express HD 1080P</source>
        <translation>Roku Express HD 1080P</translation>
    </message>
    <message>
        <source>Roku Express HD 720P</source>
        <translation>Roku Express HD 720P</translation>
    </message>
    <message>
        <source>Roku TV 4K</source>
        <translation>Roku TV 4K</translation>
    </message>
    <message>
        <source>Roku Ultra 4K</source>
        <translation>Roku Ultra 4K</translation>
    </message>
    <message>
        <source>Roku Ultra 4K MKV</source>
        <translation>Roku Ultra 4K MKV</translation>
    </message>
    <message>
        <source>SD 180P</source>
        <translation>SD 180P</translation>
    </message>
    <message>
        <source>SD 240P</source>
        <translation>SD 240P</translation>
    </message>
    <message>
        <source>SD 360P</source>
        <translation>SD 360P</translation>
    </message>
    <message>
        <source>SD 480P</source>
        <translation>SD 480P</translation>
    </message>
    <message>
        <source>SD 576P</source>
        <translation>SD 576P</translation>
    </message>
    <message>
        <source>Shorts 4K</source>
        <translation>Shorts 4K</translation>
    </message>
    <message>
        <source>Shorts HD 1080P</source>
        <translation>Shorts HD 1080P</translation>
    </message>
    <message>
        <source>Shorts HD 720P</source>
        <translation>Shorts HD 720P</translation>
    </message>
    <message>
        <source>Smart TV 4K</source>
        <translation>Smart TV 4K</translation>
    </message>
    <message>
        <source>Smart TV HD 1080P</source>
        <translation>Smart TV HD 1080P</translation>
    </message>
    <message>
        <source>Smart TV HD 720P</source>
        <translation>Smart TV HD 720P</translation>
    </message>
    <message>
        <source>Square HD 1080P</source>
        <translation>Cuadrado HD 1080P</translation>
    </message>
    <message>
        <source>Square HD 720P</source>
        <translation>Cuadrado HD 720P</translation>
    </message>
    <message>
        <source>Story HD 1080P</source>
        <translation>Historia HD 1080P</translation>
    </message>
    <message>
        <source>TV Box 4K</source>
        <translation>TV Box 4K</translation>
    </message>
    <message>
        <source>TV Stick HD 1080P</source>
        <translation>TV Stick HD 1080P</translation>
    </message>
    <message>
        <source>V Series 4K</source>
        <translation>V Series 4K</translation>
    </message>
    <message>
        <source>Wii SD 480P</source>
        <translation>Wii SD 480P</translation>
    </message>
    <message>
        <source>Wii U HD 1080P</source>
        <translation>Wii U HD 1080P</translation>
    </message>
    <message>
        <source>Wii U HD 720P</source>
        <translation>Wii U HD 720P</translation>
    </message>
    <message>
        <source>Xbox 360 HD 1080P</source>
        <translation>Xbox 360 HD 1080P</translation>
    </message>
    <message>
        <source>Xbox 360 HD 720P</source>
        <translation>Xbox 360 HD 720P</translation>
    </message>
    <message>
        <source>Xbox One HD 1080P</source>
        <translation>Xbox One HD 1080P</translation>
    </message>
    <message>
        <source>Xbox One HD 720P</source>
        <translation>Xbox One HD 720P</translation>
    </message>
    <message>
        <source>Xbox One X 4K</source>
        <translation>Xbox One X 4K</translation>
    </message>
    <message>
        <source>Xbox Series S 2K</source>
        <translation>Xbox Series S 2K</translation>
    </message>
    <message>
        <source>Xbox Series X 4K</source>
        <translation>Xbox Series X 4K</translation>
    </message>
    <message>
        <source>Xiaomi 4K</source>
        <translation>Xiaomi 4K</translation>
    </message>
    <message>
        <source>Xiaomi HD 1080P</source>
        <translation>Xiaomi HD 1080P</translation>
    </message>
    <message>
        <source>Xiaomi Pad 2K</source>
        <translation>Xiaomi Pad 2K</translation>
    </message>
    <message>
        <source>Xperia 1 4K</source>
        <translation>Xperia 1 4K</translation>
    </message>
    <message>
        <source>Xperia 5 HD 1080P</source>
        <translation>Xperia 5 HD 1080P</translation>
    </message>
    <message>
        <source>Xperia L HD 720P</source>
        <translation>Xperia L HD 720P</translation>
    </message>
    <message>
        <source>Y HD 720P</source>
        <translation>Y HD 720P</translation>
    </message>
    <message>
        <source>iPad 4K</source>
        <translation>iPad 4K</translation>
    </message>
    <message>
        <source>iPad HD 1080P</source>
        <translation>iPad HD 1080P</translation>
    </message>
    <message>
        <source>iPad HD 720P</source>
        <translation>iPad HD 720P</translation>
    </message>
    <message>
        <source>iPhone 4K</source>
        <translation>iPhone 4K</translation>
    </message>
    <message>
        <source>iPhone HD 1080P</source>
        <translation>iPhone HD 1080P</translation>
    </message>
    <message>
        <source>iPhone HD 720P</source>
        <translation>iPhone HD 720P</translation>
    </message>
    <message>
        <source>nova HD 1080P</source>
        <translation>nova HD 1080P</translation>
    </message>
    <message>
        <source>Video and audio files</source>
        <translation>Archivos de vídeo y audio</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Todos los archivos</translation>
    </message>
    <message>
        <source>There are no video or audio files in the folder %1; add the files themselves</source>
        <translation>En la carpeta %1 no hay archivos de vídeo ni de audio; añade los archivos directamente</translation>
    </message>
    <message>
        <source>No file manager could be started to show the folder %1; open it by hand</source>
        <translation>No se pudo iniciar ningún gestor de archivos para mostrar la carpeta %1; ábrela a mano</translation>
    </message>
    <message>
        <source>VexConvert can&apos;t open its window</source>
        <translation>VexConvert no puede abrir su ventana</translation>
    </message>
    <message>
        <source>%1 is the earliest possible time</source>
        <translation>%1 es el primer momento posible</translation>
    </message>
    <message>
        <source>%1 is the latest possible time</source>
        <translation>%1 es el último momento posible</translation>
    </message>
    <message>
        <source>For both pages; each can have its own settings below its list</source>
        <translation>Para ambas páginas; cada una puede tener otros ajustes bajo su lista</translation>
    </message>
    <message>
        <source>This folder isn&apos;t there; choose another one</source>
        <translation>Esta carpeta no existe; elige otra</translation>
    </message>
    <message>
        <source>A name has no &quot;/&quot;; choose the folder in &quot;Save to&quot;</source>
        <translation>Un nombre no contiene «/»; elige la carpeta en «Guardar en»</translation>
    </message>
    <message>
        <source>About VexConvert</source>
        <translation>Acerca de VexConvert</translation>
    </message>
    <message>
        <source>Add a number</source>
        <translation>Añadir un número</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Añadir carpeta</translation>
    </message>
    <message>
        <source>As many as suit this machine</source>
        <translation>Las que convengan al equipo</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Como el escritorio</translation>
    </message>
    <message>
        <source>Ask</source>
        <translation>Preguntar</translation>
    </message>
    <message>
        <source>Conversions at once</source>
        <translation>Conversiones a la vez</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Cut in the editor</source>
        <translation>Cortar en el editor</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>For example %1</source>
        <translation>Por ejemplo, %1</translation>
    </message>
    <message>
        <source>Holidays</source>
        <translation>Vacaciones</translation>
    </message>
    <message>
        <source>If a name is in use</source>
        <translation>Si un nombre ya existe</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Conservar ambos</translation>
    </message>
    <message>
        <source>Language (from the next start)</source>
        <translation>Idioma (desde el próximo inicio)</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Make the subfolders of an added folder, too</source>
        <translation>Crear también las subcarpetas de una carpeta añadida</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Nombres</translation>
    </message>
    <message>
        <source>Names in use</source>
        <translation>Nombres ya usados</translation>
    </message>
    <message>
        <source>Names of the results</source>
        <translation>Nombres de los resultados</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Qt is under the LGPL 3, ffmpeg under the LGPL or the GPL.</source>
        <translation>Qt está bajo la LGPL 3; ffmpeg, bajo la LGPL o la GPL.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>Replace the file</source>
        <translation>Reemplazar el archivo</translation>
    </message>
    <message>
        <source>Show log</source>
        <translation>Mostrar el registro</translation>
    </message>
    <message>
        <source>Estimate sizes from short samples</source>
        <translation>Estimar los tamaños con muestras breves</translation>
    </message>
    <message>
        <source>Show no animations</source>
        <translation>No mostrar animaciones</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Omitir</translation>
    </message>
    <message>
        <source>Skip the file</source>
        <translation>Omitir el archivo</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>There is no field {%1}; use %2</source>
        <translation>No hay ningún campo {%1}; usa %2</translation>
    </message>
    <message>
        <source>These are replaced: %1</source>
        <translation>Se sustituyen: %1</translation>
    </message>
    <message>
        <source>These files already exist:</source>
        <translation>Estos archivos ya existen:</translation>
    </message>
    <message>
        <source>VexConvert is free software under the MIT licence.</source>
        <translation>VexConvert es software libre bajo la licencia MIT.</translation>
    </message>
    <message>
        <source>Write a time such as 1:02:03.5</source>
        <translation>Escribe un tiempo como 1:02:03.5</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>ffmpeg hasn&apos;t run for this file yet</source>
        <translation>ffmpeg aún no se ha ejecutado para este archivo</translation>
    </message>
    <message>
        <source>was there already</source>
        <translation>ya existía</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Tell me when all files are converted</source>
        <translation>Avisarme cuando todos los archivos estén convertidos</translation>
    </message>
    <message>
        <source>%1 % smaller</source>
        <translation>%1 % más pequeño</translation>
    </message>
    <message>
        <source>%1 % larger</source>
        <translation>%1 % más grande</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pausa</translation>
    </message>
    <message>
        <source>%1 is a picture; add video or audio files</source>
        <translation>%1 es una imagen; añade archivos de vídeo o audio</translation>
    </message>
    <message>
        <source>%1 is a playlist; add the files that it names instead</source>
        <translation>%1 es una lista de reproducción; añade los archivos que contiene</translation>
    </message>
    <message>
        <source>%1 is not on this computer; download it first and add the file</source>
        <translation>%1 no está en este equipo; descárgalo primero y añade el archivo</translation>
    </message>
    <message>
        <source>There is no file %1 any more; convert it again</source>
        <translation>El archivo %1 ya no existe; conviértelo de nuevo</translation>
    </message>
    <message>
        <source>No player could be started for %1; open it by hand</source>
        <translation>No se pudo iniciar ningún reproductor para %1; ábrelo a mano</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 archivos</translation>
    </message>
    <message>
        <source>Already in the list: %1</source>
        <translation>Ya en la lista: %1</translation>
    </message>
    <message>
        <source>Add again</source>
        <translation>Añadir de nuevo</translation>
    </message>
    <message>
        <source>Removed: %1</source>
        <translation>Quitado: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Converted already: %1</source>
        <translation>Ya convertido: %1</translation>
    </message>
    <message>
        <source>Convert again</source>
        <translation>Convertir de nuevo</translation>
    </message>
    <message>
        <source>VexConvert was closed while it converted; Convert All goes on with what is left</source>
        <translation>VexConvert se cerró mientras convertía; «Convertir todo» continúa con lo que falta</translation>
    </message>
    <message>
        <source>about %1</source>
        <translation>unos %1</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>como máximo %1</translation>
    </message>
    <message>
        <source>Files converted: %1</source>
        <translation>Archivos convertidos: %1</translation>
    </message>
    <message>
        <source>failed: %1</source>
        <translation>con error: %1</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>Interrumpido</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>Ordenar por</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Choose a format …</source>
        <translation>Elegir un formato…</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Intro</translation>
    </message>
    <message>
        <source>Follow “Convert all to”</source>
        <translation>Seguir «Convertir todo a»</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Ctrl+A</source>
        <translation>Ctrl+A</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Supr</translation>
    </message>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%1 de %2 seleccionados</translation>
    </message>
    <message>
        <source>Files: %1</source>
        <translation>Archivos: %1</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reanudar</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Clear converted</source>
        <translation>Quitar los convertidos</translation>
    </message>
    <message>
        <source>Stop converting?</source>
        <translation>¿Dejar de convertir?</translation>
    </message>
    <message>
        <source>The list is kept: you can convert the rest the next time.</source>
        <translation>La lista se conserva: puedes convertir el resto la próxima vez.</translation>
    </message>
    <message>
        <source>Stop and close</source>
        <translation>Detener y cerrar</translation>
    </message>
    <message>
        <source>Keep converting</source>
        <translation>Seguir convirtiendo</translation>
    </message>
    <message>
        <source>Use %1</source>
        <translation>Usar %1</translation>
    </message>
    <message>
        <source>Audio tracks</source>
        <translation>Pistas de audio</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation>Subtítulos</translation>
    </message>
    <message>
        <source>No audio tracks or subtitles</source>
        <translation>Sin pistas de audio ni subtítulos</translation>
    </message>
    <message>
        <source>Default track</source>
        <translation>Predeterminada</translation>
    </message>
    <message>
        <source>Default track: %1</source>
        <translation>Predeterminada: %1</translation>
    </message>
    <message>
        <source>Burn in</source>
        <translation>Incrustar</translation>
    </message>
    <message>
        <source>Burn in: %1</source>
        <translation>Incrustar: %1</translation>
    </message>
    <message>
        <source>Draws these subtitles onto the picture</source>
        <translation>Dibuja estos subtítulos en la imagen</translation>
    </message>
    <message>
        <source>Show tracks</source>
        <translation>Mostrar pistas</translation>
    </message>
    <message>
        <source>Hide tracks</source>
        <translation>Ocultar pistas</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espacio</translation>
    </message>
    <message>
        <source>not in .%1</source>
        <translation>no cabe en .%1</translation>
    </message>
    <message>
        <source>forced</source>
        <translation>forzados</translation>
    </message>
    <message>
        <source>%1 channels</source>
        <translation>%1 canales</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Found by: %1</source>
        <translation>Encontrado por: %1</translation>
    </message>
    <message>
        <source>Can’t be used: %1</source>
        <translation>No se puede usar: %1</translation>
    </message>
    <message>
        <source>Remove from the favorites</source>
        <translation>Quitar de favoritos</translation>
    </message>
    <message>
        <source>Add to the favorites</source>
        <translation>Añadir a favoritos</translation>
    </message>
    <message>
        <source>More about %1</source>
        <translation>Más sobre %1</translation>
    </message>
    <message>
        <source>Find a preset</source>
        <translation>Buscar un ajuste</translation>
    </message>
    <message>
        <source>Find a preset (Ctrl+F)</source>
        <translation>Buscar un ajuste (Ctrl+F)</translation>
    </message>
    <message>
        <source>Import or export presets</source>
        <translation>Importar o exportar ajustes</translation>
    </message>
    <message>
        <source>Import presets …</source>
        <translation>Importar ajustes…</translation>
    </message>
    <message>
        <source>Import presets</source>
        <translation>Importar ajustes</translation>
    </message>
    <message>
        <source>Export presets</source>
        <translation>Exportar ajustes</translation>
    </message>
    <message>
        <source>Export all my presets …</source>
        <translation>Exportar todos los míos…</translation>
    </message>
    <message>
        <source>For the selected files: %1</source>
        <translation>Para los archivos seleccionados: %1</translation>
    </message>
    <message>
        <source>For all files</source>
        <translation>Para todos los archivos</translation>
    </message>
    <message>
        <source>Presets: %1</source>
        <translation>Ajustes: %1</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
    </message>
    <message>
        <source>Note …</source>
        <translation>Nota…</translation>
    </message>
    <message>
        <source>Use this preset</source>
        <translation>Usar este ajuste</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>F2</source>
        <translation>F2</translation>
    </message>
    <message>
        <source>Alt+Up</source>
        <translation>Alt+Arriba</translation>
    </message>
    <message>
        <source>Alt+Down</source>
        <translation>Alt+Abajo</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicar</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Cambiar el nombre</translation>
    </message>
    <message>
        <source>What has been changed …</source>
        <translation>Qué se ha cambiado…</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Subir</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Bajar</translation>
    </message>
    <message>
        <source>Default on the command line for</source>
        <translation>Predeterminado en la línea de órdenes para</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>Archivos de audio</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Export …</source>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtros</translation>
    </message>
    <message>
        <source>My presets</source>
        <translation>Míos</translation>
    </message>
    <message>
        <source>Try 10 seconds</source>
        <translation>Probar 10 segundos</translation>
    </message>
    <message>
        <source>Changes in “%1”</source>
        <translation>Cambios en «%1»</translation>
    </message>
    <message>
        <source>It isn’t known what this preset was made from.</source>
        <translation>No se sabe de qué se hizo este ajuste.</translation>
    </message>
    <message>
        <source>None: all values are those of %1.</source>
        <translation>Ninguno: todos los valores son los de %1.</translation>
    </message>
    <message>
        <source>It was made from %1, with these changes:</source>
        <translation>Se hizo a partir de %1, con estos cambios:</translation>
    </message>
    <message>
        <source>Take back</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Take all back</source>
        <translation>Deshacer todo</translation>
    </message>
    <message>
        <source>new</source>
        <translation>nuevo</translation>
    </message>
    <message>
        <source>already there</source>
        <translation>ya está</translation>
    </message>
    <message>
        <source>another one is there</source>
        <translation>hay otro</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>rechazado</translation>
    </message>
    <message>
        <source>If you have another one of this title and format</source>
        <translation>Si ya hay otro con este título y formato</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Trying 10 seconds of %1 …</source>
        <translation>Probando 10 segundos de %1…</translation>
    </message>
    <message>
        <source>All of %1 would be about %2.</source>
        <translation>%1 completo ocuparía unos %2.</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Reproducir otra vez</translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (copia)</translation>
    </message>
    <message>
        <source>a preset that is no longer there</source>
        <translation>un ajuste que ya no existe</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Deshecho: %1</translation>
    </message>
    <message>
        <source>%1 presets</source>
        <translation>%1 ajustes</translation>
    </message>
    <message>
        <source>Presets changed: %1</source>
        <translation>Ajustes cambiados: %1</translation>
    </message>
    <message>
        <source>Changed: %1</source>
        <translation>Cambiado: %1</translation>
    </message>
    <message>
        <source>Deleted: %1</source>
        <translation>Eliminado: %1</translation>
    </message>
    <message>
        <source>The temporary folder can’t be written (%1); check the disk</source>
        <translation>No se puede escribir en la carpeta temporal (%1); comprueba el disco</translation>
    </message>
    <message>
        <source>good for “%1”</source>
        <translation>bueno para «%1»</translation>
    </message>
    <message>
        <source>Type a device, a site, a codec, a size or a purpose, such as “iphone 1080” or “small”.</source>
        <translation>Escribe un dispositivo, un sitio, un códec, un tamaño o un fin, como «iphone 1080» o «pequeño».</translation>
    </message>
    <message>
        <source>No preset has all of this; leave out a word or a filter.</source>
        <translation>Ningún ajuste cumple todo; quita una palabra o un filtro.</translation>
    </message>
    <message>
        <source>No preset is known for “%1”.</source>
        <translation>No se conoce ningún ajuste para «%1».</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>Recently used</source>
        <translation>Usados recientemente</translation>
    </message>
    <message>
        <source>mono</source>
        <translation>mono</translation>
    </message>
    <message>
        <source>stereo</source>
        <translation>estéreo</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automático</translation>
    </message>
    <message>
        <source>You have no presets of your own yet.</source>
        <translation>Aún no tienes ajustes propios.</translation>
    </message>
    <message>
        <source>Exported: %1</source>
        <translation>Exportado: %1</translation>
    </message>
    <message>
        <source>%1 can’t be written (%2); choose another folder</source>
        <translation>No se puede escribir %1 (%2); elige otra carpeta</translation>
    </message>
    <message>
        <source>Presets imported: %1</source>
        <translation>Ajustes importados: %1</translation>
    </message>
    <message>
        <source>Files of presets</source>
        <translation>Archivos de ajustes</translation>
    </message>
    <message>
        <source>approximated</source>
        <translation>aproximado</translation>
    </message>
    <message>
        <source>lost</source>
        <translation>se pierde</translation>
    </message>
    <message>
        <source>No preset was imported.</source>
        <translation>No se ha importado ningún ajuste.</translation>
    </message>
    <message>
        <source>no file yet</source>
        <translation>aún sin archivos</translation>
    </message>
</context>
<context>
    <name>OutputStreams</name>
    <message>
        <source>has no video; choose an audio preset</source>
        <translation>no tiene vídeo; elige un formato de audio</translation>
    </message>
    <message>
        <source>has no audio; choose a video preset</source>
        <translation>no tiene sonido; elige un formato de vídeo</translation>
    </message>
    <message>
        <source>a .%1 file can&apos;t hold video; choose an audio preset</source>
        <translation>un archivo .%1 no admite vídeo; elige un formato de audio</translation>
    </message>
    <message>
        <source>is a single picture and makes no film; on the command line, --duration SECONDS shows it for so long</source>
        <translation>es una sola imagen y no da una película; en la línea de órdenes, --duration SECONDS la muestra ese tiempo</translation>
    </message>
    <message>
        <source>has %1 audio tracks, so no number %2; choose another one</source>
        <translation>tiene %1 pistas de audio, así que ninguna número %2; elige otra</translation>
    </message>
    <message>
        <source>none of its audio tracks is kept; keep one</source>
        <translation>no se conserva ninguna de sus pistas de audio; conserva una</translation>
    </message>
</context>
<context>
    <name>EncoderChoice</name>
    <message>
        <source>needs the encoder %1 for %2, which this ffmpeg lacks; choose a preset with another encoder or install an ffmpeg that has it</source>
        <translation>necesita el codificador %1 para %2, que este ffmpeg no tiene; elige un formato con otro codificador o instala un ffmpeg que lo tenga</translation>
    </message>
    <message>
        <source> or </source>
        <translation> o </translation>
    </message>
</context>
<context>
    <name>RateControl</name>
    <message>
        <source>says no length, so that no bitrate gives it the asked size; choose a bitrate instead</source>
        <translation>no indica su duración, así que ninguna tasa de bits da el tamaño pedido; elige en su lugar una tasa de bits</translation>
    </message>
    <message>
        <source>is too long for the asked size; choose a larger size or less audio</source>
        <translation>es demasiado largo para el tamaño pedido; elige un tamaño mayor o menos audio</translation>
    </message>
</context>
<context>
    <name>EncoderList</name>
    <message>
        <source>%1 doesn&apos;t list its encoders (%2); check that &quot;%1 -encoders&quot; works, or install another ffmpeg</source>
        <translation>%1 no indica sus codificadores (%2); comprueba que «%1 -encoders» los muestre o instala otro ffmpeg</translation>
    </message>
</context>
<context>
    <name>Conversion</name>
    <message>
        <source>the disk with %1 is full; free some space or choose another folder</source>
        <translation>el disco de %1 está lleno; libera espacio o elige otra carpeta</translation>
    </message>
    <message>
        <source>ffmpeg couldn&apos;t convert it (%1); check the file or try another preset</source>
        <translation>ffmpeg no pudo convertirlo (%1); revisa el archivo o prueba otro formato</translation>
    </message>
    <message>
        <source>ffmpeg wrote a file that can&apos;t be played; try another preset</source>
        <translation>ffmpeg escribió un archivo que no se puede reproducir; prueba otro formato</translation>
    </message>
    <message>
        <source>holds %1 of %2 s: the source ends early or is damaged</source>
        <translation>contiene %1 de %2 s: el origen termina antes o está dañado</translation>
    </message>
    <message>
        <source>its video is HDR, and this ffmpeg can&apos;t map that to ordinary colours; install an ffmpeg with zscale and tonemap</source>
        <translation>el vídeo es HDR y este ffmpeg no puede pasarlo a colores corrientes; instala un ffmpeg con zscale y tonemap</translation>
    </message>
    <message>
        <source>the encoder refuses these settings</source>
        <translation>el codificador rechaza estos ajustes</translation>
    </message>
    <message>
        <source>this kind of file can&apos;t hold one of the streams</source>
        <translation>este tipo de archivo no admite una de las pistas</translation>
    </message>
    <message>
        <source>the source doesn&apos;t say when its frames are shown</source>
        <translation>el origen no dice cuándo se muestran sus fotogramas</translation>
    </message>
</context>
<context>
    <name>MediaInput</name>
    <message>
        <source>is a playlist; choose the files that it lists</source>
        <translation>es una lista de reproducción; elige los archivos que contiene</translation>
    </message>
    <message>
        <source>stands for an image sequence; rename it and its folders without any of % * ? [ ] { }</source>
        <translation>representa una secuencia de imágenes; cambia el nombre del archivo y sus carpetas para que no tengan % * ? [ ] { }</translation>
    </message>
    <message>
        <source>is of a kind that isn&apos;t converted (%1); choose a video or audio file</source>
        <translation>es de un tipo que no se convierte (%1); elige un archivo de vídeo o audio</translation>
    </message>
</context>
<context>
    <name>MediaProbe</name>
    <message>
        <source>no such file; check its name</source>
        <translation>no existe el archivo; comprueba su nombre</translation>
    </message>
    <message>
        <source>this is a folder; name the files in it</source>
        <translation>es una carpeta; elige los archivos que contiene</translation>
    </message>
    <message>
        <source>cannot be read as media (%1); check that it is a complete video or audio file</source>
        <translation>no se puede leer como vídeo o audio (%1); comprueba que el archivo esté completo</translation>
    </message>
    <message>
        <source>holds neither video nor audio; choose a video or audio file</source>
        <translation>no contiene vídeo ni audio; elige un archivo de vídeo o audio</translation>
    </message>
    <message>
        <source>takes too long to read; check the disk or network that it is on</source>
        <translation>tarda demasiado en leerse; comprueba el disco o la red donde está</translation>
    </message>
    <message>
        <source>describes itself without end; check that it is a complete video or audio file</source>
        <translation>contiene una descripción interminable; comprueba que es un archivo de vídeo o audio completo</translation>
    </message>
</context>
<context>
    <name>OutputSettings</name>
    <message>
        <source>files of the kind &quot;.%1&quot; can&apos;t be written; choose another preset</source>
        <translation>no se pueden escribir archivos de tipo «.%1»; elige otro formato</translation>
    </message>
    <message>
        <source>no encoder has a name like &quot;%1&quot;; choose another preset</source>
        <translation>ningún codificador se llama «%1»; elige otro formato</translation>
    </message>
    <message>
        <source>the preset&apos;s %1 is %2; it must be 0 or %3; choose another preset</source>
        <translation>%1 del ajuste es %2; debe ser 0 o %3; elige otro ajuste</translation>
    </message>
    <message>
        <source>not a valid number</source>
        <translation>un número no válido</translation>
    </message>
    <message>
        <source>the part to keep must begin at 0 or later and end after that; choose another part</source>
        <translation>el fragmento debe empezar en 0 o después y terminar más tarde; elige otro fragmento</translation>
    </message>
</context>
<context>
    <name>PendingFile</name>
    <message>
        <source>the folder %1 doesn&apos;t exist; make it or choose another one</source>
        <translation>la carpeta %1 no existe; créala o elige otra</translation>
    </message>
    <message>
        <source>can&apos;t write into the folder %1 (%2); choose another one</source>
        <translation>no se puede escribir en la carpeta %1 (%2); elige otra</translation>
    </message>
    <message>
        <source>the result couldn&apos;t get its name in %1 (%2); choose another folder</source>
        <translation>no se pudo dar nombre al resultado en %1 (%2); elige otra carpeta</translation>
    </message>
</context>
<context>
    <name>PresetStore</name>
    <message>
        <source>can&apos;t write into the configuration folder %1 (%2); check its disk and its permissions</source>
        <translation>no se puede escribir en la carpeta de configuración %1 (%2); revisa el disco y los permisos</translation>
    </message>
    <message>
        <source>can&apos;t write %1, which is as before; check its disk and its permissions</source>
        <translation>no se puede escribir %1, que queda como antes; revisa el disco y los permisos</translation>
    </message>
</context>
<context>
    <name>Tool</name>
    <message>
        <source>%1 is not on the PATH; install ffmpeg (Debian: apt-get install ffmpeg) and try again</source>
        <translation>%1 no está en el PATH; instala ffmpeg (Debian: apt-get install ffmpeg) e inténtalo de nuevo</translation>
    </message>
    <message>
        <source>%1 couldn&apos;t be started (%2); close other programs or raise your limits on open files and processes (ulimit -n, ulimit -u), and try again</source>
        <translation>no se ha podido iniciar %1 (%2); cierra otros programas o aumenta los límites de archivos abiertos y procesos (ulimit -n, ulimit -u) e inténtalo de nuevo</translation>
    </message>
</context>
<context>
    <name>ToolRun</name>
    <message>
        <source>%1 stopped without saying why</source>
        <translation>%1 se detuvo sin decir por qué</translation>
    </message>
    <message>
        <source>%1 took too long</source>
        <translation>%1 ha tardado demasiado</translation>
    </message>
    <message>
        <source>%1 printed too much</source>
        <translation>%1 ha generado demasiada salida</translation>
    </message>
</context>
<context>
    <name>FolderLock</name>
    <message>
        <source>another program</source>
        <translation>otro programa</translation>
    </message>
    <message>
        <source>%1 (process %2 on %3)</source>
        <translation>%1 (proceso %2 en %3)</translation>
    </message>
    <message>
        <source>can&apos;t write into the configuration folder %1 (%2); name another one</source>
        <translation>no se puede escribir en la carpeta de configuración %1 (%2); indica otra</translation>
    </message>
    <message>
        <source>%1 is using the presets in %2; close it, or try again when it is done</source>
        <translation>%1 está usando los ajustes de %2; ciérralo o inténtalo cuando termine</translation>
    </message>
    <message>
        <source>%1 is no plain file; remove it</source>
        <translation>%1 no es un archivo normal; elimínalo</translation>
    </message>
    <message>
        <source>waiting for %1, which is using the presets in %2</source>
        <translation>esperando a %1, que está usando los ajustes de %2</translation>
    </message>
</context>
<context>
    <name>UserFile</name>
    <message>
        <source>%1 is no file; move it away</source>
        <translation>%1 no es un archivo; retíralo</translation>
    </message>
    <message>
        <source>%1 has %2, and no more than %3 are read; move it away to start anew</source>
        <translation>%1 ocupa %2 y solo se leen hasta %3; retíralo para empezar de nuevo</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read (%2); check its permissions</source>
        <translation>no se puede leer %1 (%2); revisa los permisos</translation>
    </message>
    <message>
        <source>%1 is missing; put its last good copy, %2, in its place</source>
        <translation>falta %1; pon en su lugar su última copia buena, %2</translation>
    </message>
    <message>
        <source>%1 is damaged; put its last good copy, %2, in its place</source>
        <translation>%1 está dañado; pon en su lugar su última copia buena, %2</translation>
    </message>
    <message>
        <source>%1 is empty and there is no good copy of it; remove it to start anew</source>
        <translation>%1 está vacío y no hay copia buena; elimínalo para empezar de nuevo</translation>
    </message>
    <message>
        <source>%1 is damaged and there is no good copy of it; fix it, or move it away to start anew</source>
        <translation>%1 está dañado y no hay copia buena; repáralo o retíralo para empezar de nuevo</translation>
    </message>
    <message>
        <source>%1 was empty and there is no good copy of it</source>
        <translation>%1 estaba vacío y no hay copia buena</translation>
    </message>
    <message>
        <source>%1 was damaged and there is no good copy of it; it is kept as %2</source>
        <translation>%1 estaba dañado y no hay copia buena; se guarda como %2</translation>
    </message>
    <message>
        <source>%1 was damaged; its last good copy, %2, is in its place, and the damaged file is kept as %3</source>
        <translation>%1 estaba dañado; en su lugar está su última copia buena, %2, y el archivo dañado se guarda como %3</translation>
    </message>
    <message>
        <source>%1 was missing; its last good copy, %2, is in its place</source>
        <translation>faltaba %1; en su lugar está su última copia buena, %2</translation>
    </message>
    <message>
        <source>%1 was missing and its copy, %2, is damaged</source>
        <translation>faltaba %1 y su copia, %2, está dañada</translation>
    </message>
    <message>
        <source>%1 was empty; its last good copy, %2, is in its place</source>
        <translation>%1 estaba vacío; en su lugar está su última copia buena, %2</translation>
    </message>
    <message>
        <source>can&apos;t write %1 (%2), which is as before; check its disk and its permissions</source>
        <translation>no se puede escribir %1 (%2), que queda como antes; revisa el disco y los permisos</translation>
    </message>
    <message>
        <source>can&apos;t keep the unusable presets of %1 in %2 (%3); check its disk and its permissions</source>
        <translation>no se pueden guardar en %2 los ajustes inservibles de %1 (%3); revisa el disco y los permisos</translation>
    </message>
    <message>
        <source>%1 holds presets without settings (&quot;outPutNode&quot;), which can&apos;t be used; they are kept in %2</source>
        <translation>%1 contiene ajustes sin valores (&quot;outPutNode&quot;), que no se pueden usar; se guardan en %2</translation>
    </message>
</context>
<context>
    <name>Losses</name>
    <message>
        <source>left out: %1</source>
        <translation>omitido: %1</translation>
    </message>
    <message>
        <source>%1 of %2 audio tracks (.%3 holds %4, .%5 holds all)</source>
        <translation>%1 de %2 pistas de audio (.%3 contiene %4, .%5 todas)</translation>
    </message>
    <message>
        <source>subtitle tracks: %1 (%2; .%3 doesn&apos;t hold them, .%4 does)</source>
        <translation>pistas de subtítulos: %1 (%2; .%3 no las admite, .%4 sí)</translation>
    </message>
    <message>
        <source>subtitle tracks: %1 (%2; no format holds them)</source>
        <translation>pistas de subtítulos: %1 (%2; ningún formato las admite)</translation>
    </message>
    <message>
        <source>subtitle tracks: %1 (%2; they can&apos;t be written into this .%3)</source>
        <translation>pistas de subtítulos: %1 (%2; no se pueden escribir en este .%3)</translation>
    </message>
    <message>
        <source>more video tracks: %1 (a result has one)</source>
        <translation>más pistas de vídeo: %1 (un resultado tiene una)</translation>
    </message>
    <message>
        <source>attachments: %1 (.%2 doesn&apos;t hold them, .mkv does)</source>
        <translation>adjuntos: %1 (.%2 no los admite, .mkv sí)</translation>
    </message>
    <message>
        <source>chapters: %1 (.%2 doesn&apos;t hold them, .%3 does)</source>
        <translation>capítulos: %1 (.%2 no los admite, .%3 sí)</translation>
    </message>
    <message>
        <source>the cover (.%1 doesn&apos;t hold it, .%2 does)</source>
        <translation>la carátula (.%1 no la admite, .%2 sí)</translation>
    </message>
</context>
<context>
    <name>SubtitlePlan</name>
    <message>
        <source>has %1 subtitle tracks, so no number %2; choose another one</source>
        <translation>tiene %1 pistas de subtítulos, así que ninguna número %2; elige otra</translation>
    </message>
</context>
<context>
    <name>KeptQueue</name>
    <message>
        <source>it is of a newer version of the program</source>
        <translation>es de una versión más nueva del programa</translation>
    </message>
    <message>
        <source>it holds no list of files</source>
        <translation>no contiene ninguna lista de archivos</translation>
    </message>
    <message>
        <source>The list of files of the last time can&apos;t be read (%1); it is now %2, and the window starts empty</source>
        <translation>La lista de archivos de la última vez no se puede leer (%1); ahora es %2 y la ventana empieza vacía</translation>
    </message>
    <message>
        <source>The list of files of the last time can&apos;t be read (%1); remove %2 to let a new one be kept</source>
        <translation>La lista de archivos de la última vez no se puede leer (%1); elimina %2 para que se pueda guardar una nueva</translation>
    </message>
    <message>
        <source>The list of files can&apos;t be kept in %1 (%2); free some space or check the folder&apos;s permissions</source>
        <translation>La lista de archivos no se puede guardar en %1 (%2); libera espacio o revisa los permisos de la carpeta</translation>
    </message>
</context>
<context>
    <name>CodecWords</name>
    <message>
        <source>more than 8 bits only where the source has them</source>
        <translation>más de 8 bits solo si el origen los tiene</translation>
    </message>
    <message>
        <source>%1 is written without the graphics card</source>
        <translation>%1 se escribe sin la tarjeta gráfica</translation>
    </message>
    <message>
        <source>audio of another codec is encoded</source>
        <translation>el audio de otro códec se vuelve a codificar</translation>
    </message>
    <message>
        <source>AAC without its high-efficiency extension</source>
        <translation>AAC sin su extensión de alta eficiencia</translation>
    </message>
    <message>
        <source>the encoder&apos;s usual speed</source>
        <translation>la velocidad habitual del codificador</translation>
    </message>
    <message>
        <source>%1 isn&apos;t tuned so</source>
        <translation>%1 no se ajusta así</translation>
    </message>
    <message>
        <source>the encoder chooses the profile</source>
        <translation>el codificador elige el perfil</translation>
    </message>
    <message>
        <source>the encoder chooses the level</source>
        <translation>el codificador elige el nivel</translation>
    </message>
    <message>
        <source>the encoder chooses the key frames</source>
        <translation>el codificador elige los fotogramas clave</translation>
    </message>
</context>
<context>
    <name>HandBrake</name>
    <message>
        <source>h264</source>
        <translation>h264</translation>
    </message>
    <message>
        <source>the same number for another encoder</source>
        <translation>el mismo número para otro codificador</translation>
    </message>
    <message>
        <source>the average bitrate is reached in one pass</source>
        <translation>la tasa media se alcanza en una sola pasada</translation>
    </message>
    <message>
        <source>a variable rate stays variable where the format has it</source>
        <translation>una frecuencia variable sigue siéndolo si el formato lo permite</translation>
    </message>
    <message>
        <source>the rate is a limit; slower sources keep theirs</source>
        <translation>la frecuencia es un límite; los orígenes más lentos conservan la suya</translation>
    </message>
    <message>
        <source>each source&apos;s track is written once</source>
        <translation>cada pista del origen se escribe una vez</translation>
    </message>
    <message>
        <source>all tracks; &quot;convert --audio&quot; chooses</source>
        <translation>todas las pistas; se eligen en la fila del archivo</translation>
    </message>
    <message>
        <source>the source&apos;s codec</source>
        <translation>el códec del origen</translation>
    </message>
    <message>
        <source>the encoder&apos;s good quality</source>
        <translation>la calidad buena del codificador</translation>
    </message>
    <message>
        <source>plain stereo</source>
        <translation>estéreo simple</translation>
    </message>
    <message>
        <source>the source&apos;s channels</source>
        <translation>los canales del origen</translation>
    </message>
    <message>
        <source>the loudness stays as it is</source>
        <translation>el volumen queda como está</translation>
    </message>
    <message>
        <source>a folder</source>
        <translation>una carpeta</translation>
    </message>
    <message>
        <source>folders are nested too deeply</source>
        <translation>las carpetas están demasiado anidadas</translation>
    </message>
    <message>
        <source>has no &quot;VideoEncoder&quot; or no &quot;FileFormat&quot;</source>
        <translation>no tiene «VideoEncoder» o «FileFormat»</translation>
    </message>
    <message>
        <source>is one of more than %1</source>
        <translation>es uno de más de %L1</translation>
    </message>
    <message>
        <source>the encoder&apos;s own value</source>
        <translation>el valor propio del codificador</translation>
    </message>
</context>
<context>
    <name>HandBrakeLeftovers</name>
    <message>
        <source>the source&apos;s delays are kept</source>
        <translation>se conservan los retardos del origen</translation>
    </message>
    <message>
        <source>parameters stand only at the file&apos;s start</source>
        <translation>los parámetros solo están al inicio del archivo</translation>
    </message>
    <message>
        <source>the source&apos;s tags are kept</source>
        <translation>se conservan las etiquetas del origen</translation>
    </message>
    <message>
        <source>the file isn&apos;t marked for the first iPods</source>
        <translation>el archivo no se marca para los primeros iPod</translation>
    </message>
    <message>
        <source>small pictures stay small</source>
        <translation>las imágenes pequeñas siguen pequeñas</translation>
    </message>
    <message>
        <source>colours aren&apos;t smoothed</source>
        <translation>los colores no se suavizan</translation>
    </message>
    <message>
        <source>the source&apos;s colours are kept</source>
        <translation>se conservan los colores del origen</translation>
    </message>
    <message>
        <source>blocks aren&apos;t smoothed</source>
        <translation>los bloques no se suavizan</translation>
    </message>
    <message>
        <source>sources that say they are interlaced are deinterlaced</source>
        <translation>se desentrelazan los orígenes que se declaran entrelazados</translation>
    </message>
    <message>
        <source>noise isn&apos;t removed</source>
        <translation>no se elimina el ruido</translation>
    </message>
    <message>
        <source>telecine isn&apos;t undone</source>
        <translation>no se deshace el telecine</translation>
    </message>
    <message>
        <source>the source&apos;s pixel shape is used</source>
        <translation>se usa la forma de píxel del origen</translation>
    </message>
    <message>
        <source>the picture isn&apos;t distorted</source>
        <translation>la imagen no se deforma</translation>
    </message>
    <message>
        <source>square pixels in a picture of the same shape</source>
        <translation>píxeles cuadrados en una imagen de la misma forma</translation>
    </message>
    <message>
        <source>no borders are added</source>
        <translation>no se añaden bordes</translation>
    </message>
    <message>
        <source>the picture isn&apos;t turned</source>
        <translation>la imagen no se gira</translation>
    </message>
    <message>
        <source>the picture isn&apos;t sharpened</source>
        <translation>la imagen no se enfoca</translation>
    </message>
    <message>
        <source>the height follows from the picture&apos;s shape</source>
        <translation>la altura resulta de la forma de la imagen</translation>
    </message>
    <message>
        <source>the width follows from the picture&apos;s shape</source>
        <translation>la anchura resulta de la forma de la imagen</translation>
    </message>
    <message>
        <source>closed captions aren&apos;t taken</source>
        <translation>no se toman los subtítulos ocultos</translation>
    </message>
    <message>
        <source>&quot;convert --burn-subtitles&quot; chooses a track</source>
        <translation>la pista que se incrusta se elige en la fila del archivo</translation>
    </message>
    <message>
        <source>&quot;convert --subtitles&quot; chooses tracks</source>
        <translation>las pistas se eligen en la fila del archivo</translation>
    </message>
    <message>
        <source>all that the format holds; &quot;convert --subtitles&quot; chooses</source>
        <translation>todos los que admite el formato; se eligen en la fila del archivo</translation>
    </message>
    <message>
        <source>the picture stays in colour</source>
        <translation>la imagen sigue en color</translation>
    </message>
    <message>
        <source>the encoder&apos;s own values</source>
        <translation>los valores propios del codificador</translation>
    </message>
    <message>
        <source>nothing is cut off</source>
        <translation>no se recorta nada</translation>
    </message>
    <message>
        <source>black borders stay</source>
        <translation>los bordes negros se quedan</translation>
    </message>
    <message>
        <source>isn&apos;t known</source>
        <translation>es desconocido</translation>
    </message>
</context>
<context>
    <name>Melt</name>
    <message>
        <source>isn&apos;t used</source>
        <translation>no se usa</translation>
    </message>
    <message>
        <source>as many bits and colours as the codec keeps</source>
        <translation>tantos bits y colores como conserva el códec</translation>
    </message>
    <message>
        <source>isn&apos;t used; the converter has a way of its own</source>
        <translation>no se usa; el conversor lo hace a su manera</translation>
    </message>
    <message>
        <source>the encoder&apos;s good quality</source>
        <translation>la calidad buena del codificador</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>línea %L1</translation>
    </message>
</context>
<context>
    <name>PresetFile</name>
    <message>
        <source>&quot;%1&quot; is not a known key</source>
        <translation>«%1» no es una clave conocida</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be an object</source>
        <translation>«%1» debe ser un objeto</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a text</source>
        <translation>«%1» debe ser un texto</translation>
    </message>
    <message>
        <source>&quot;settings.%1&quot; is not a known key</source>
        <translation>«settings.%1» no es una clave conocida</translation>
    </message>
    <message>
        <source>&quot;settings.%1&quot; must be a text</source>
        <translation>«settings.%1» debe ser un texto</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>debe ser un objeto</translation>
    </message>
    <message>
        <source>is one of more than %1</source>
        <translation>es uno de más de %L1</translation>
    </message>
    <message>
        <source>%1: %2 at byte %3</source>
        <translation>%1: %2 en el byte %L3</translation>
    </message>
    <message>
        <source>%1 has neither a list &quot;presets&quot; nor a list &quot;PresetList&quot;; it is no file of presets</source>
        <translation>%1 no tiene una lista «presets» ni «PresetList»; no es un archivo de ajustes</translation>
    </message>
    <message>
        <source>%1 has the version %2, and only version %3 can be read; export it again with this version of vexconvert</source>
        <translation>%1 tiene la versión %2 y solo se puede leer la versión %3; vuelve a exportarlo con esta versión de vexconvert</translation>
    </message>
    <message>
        <source>%1 is no file of presets of vexconvert, HandBrake, Kdenlive or Shotcut</source>
        <translation>%1 no es un archivo de ajustes de vexconvert, HandBrake, Kdenlive ni Shotcut</translation>
    </message>
</context>
<context>
    <name>PresetImport</name>
    <message>
        <source>its title must have 1 to %1 characters that can be seen</source>
        <translation>el título debe tener de 1 a %L1 caracteres visibles</translation>
    </message>
    <message>
        <source>its note is longer than %1 characters</source>
        <translation>la nota tiene más de %L1 caracteres</translation>
    </message>
    <message>
        <source>&quot;%1&quot; isn&apos;t possible for %2</source>
        <translation>«%1» no es posible para %2</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written into .%2 files</source>
        <translation>%1 no se puede escribir en archivos .%2</translation>
    </message>
    <message>
        <source>no format here writes video into .%1 files</source>
        <translation>ningún formato escribe aquí vídeo en archivos .%1</translation>
    </message>
    <message>
        <source>no format here writes audio alone into .%1 files</source>
        <translation>ningún formato escribe aquí solo audio en archivos .%1</translation>
    </message>
    <message>
        <source>its base %1 isn&apos;t in this catalogue; %2 stands in for it</source>
        <translation>su base %1 no está en este catálogo; la sustituye %2</translation>
    </message>
    <message>
        <source>nothing is imported, as %1 of %2 presets are refused; leave them out with --skip-refused</source>
        <translation>no se importa nada, pues %1 de %2 ajustes se rechazan; omítelos con --skip-refused</translation>
    </message>
    <message>
        <source>preset %1 isn&apos;t yours; only your own can be exported</source>
        <translation>el ajuste %1 no es tuyo; solo se exportan los propios</translation>
    </message>
</context>
<context>
    <name>ConfigList</name>
    <message>
        <source>%1 is no file; name another one</source>
        <translation>%1 no es un archivo; elige otro</translation>
    </message>
    <message>
        <source>there is no file %1; check its name</source>
        <translation>no existe el archivo %1; comprueba el nombre</translation>
    </message>
    <message>
        <source>%1 has %2, and no more than %3 are read</source>
        <translation>%1 tiene %2 y no se leen más de %3</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read (%2); check its permissions</source>
        <translation>%1 no se puede leer (%2); comprueba sus permisos</translation>
    </message>
</context>
<context>
    <name>PresetHistory</name>
    <message>
        <source>added &quot;%1&quot; (%2)</source>
        <translation>se añadió «%1» (%2)</translation>
    </message>
    <message>
        <source>deleted &quot;%1&quot; (%2)</source>
        <translation>se eliminó «%1» (%2)</translation>
    </message>
    <message>
        <source>changed &quot;%1&quot; (%2)</source>
        <translation>se cambió «%1» (%2)</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%L1 más</translation>
    </message>
    <message>
        <source>there is nothing to undo</source>
        <translation>no hay nada que deshacer</translation>
    </message>
    <message>
        <source>what was done last (%1) can&apos;t be undone: another program has changed these presets since</source>
        <translation>lo último (%1) no se puede deshacer: otro programa ha cambiado estos ajustes desde entonces</translation>
    </message>
</context>
</TS>
