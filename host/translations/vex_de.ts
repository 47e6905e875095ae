<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Vex</name>
    <message>
        <source>Convert all to</source>
        <translation>Alle umwandeln in</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>recently</source>
        <translation>Zuletzt</translation>
    </message>
    <message>
        <source>video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>socialVideo</source>
        <translation>Webvideo</translation>
    </message>
    <message>
        <source>Format search</source>
        <translation>Format suchen</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Keine Einträge</translation>
    </message>
    <message>
        <source>Keep Orignal</source>
        <translation>Wie Original</translation>
    </message>
    <message>
        <source>Smart Fit</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>The selected format cannot be deleted because it is in use.</source>
        <translation>Das gewählte Format wird gerade verwendet und kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>The format you searched for was not found</source>
        <translation>Das gesuchte Format wurde nicht gefunden</translation>
    </message>
    <message>
        <source>Preference</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>custom</source>
        <translation>eigenes</translation>
    </message>
    <message>
        <source>custom preset</source>
        <translation>eigene</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>High Quality</source>
        <translation>Hohe Qualität</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Low Quality</source>
        <translation>Geringe Qualität</translation>
    </message>
    <message>
        <source>Middle Quality</source>
        <translation>Mittlere Qualität</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>Encoder</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Bitrate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Abtastrate</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Anlegen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Converter</source>
        <translation>Konverter</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Add files</source>
        <translation>Dateien hinzufügen</translation>
    </message>
    <message>
        <source>Choose folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Drop video or audio files here</source>
        <translation>Video- oder Audiodateien hierher ziehen</translation>
    </message>
    <message>
        <source>Then choose a format and press Convert All</source>
        <translation>Dann ein Format wählen und „Alle umwandeln“ drücken</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Umwandeln</translation>
    </message>
    <message>
        <source>Convert All</source>
        <translation>Alle umwandeln</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stop All</source>
        <translation>Alle abbrechen</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Aus der Liste entfernen</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Same folder as the source</source>
        <translation>Ordner der Quelldatei</translation>
    </message>
    <message>
        <source>Save to</source>
        <translation>Speichern in</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Reading …</source>
        <translation>Wird gelesen …</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>Converting …</source>
        <translation>Wird umgewandelt …</translation>
    </message>
    <message>
        <source>Converted</source>
        <translation>Umgewandelt</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>noch %1</translation>
    </message>
    <message>
        <source>The window can&apos;t be made</source>
        <translation>Das Fenster lässt sich nicht anlegen</translation>
    </message>
    <message>
        <source>Same as source</source>
        <translation>Wie die Quelle</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Verlustfrei</translation>
    </message>
    <message>
        <source>CD Quality</source>
        <translation>CD-Qualität</translation>
    </message>
    <message>
        <source>32 bit float</source>
        <translation>32 Bit Gleitkomma</translation>
    </message>
    <message>
        <source>32 bit</source>
        <translation>32 Bit</translation>
    </message>
    <message>
        <source>24 bit</source>
        <translation>24 Bit</translation>
    </message>
    <message>
        <source>16 bit</source>
        <translation>16 Bit</translation>
    </message>
    <message>
        <source>Surround 5.1</source>
        <translation>Surround 5.1</translation>
    </message>
    <message>
        <source>Wideband</source>
        <translation>Breitband</translation>
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
        <translation>4K-TV</translation>
    </message>
    <message>
        <source>4K TV MKV</source>
        <translation>4K-TV MKV</translation>
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
        <translation>Clip Hochformat HD 1080P</translation>
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
        <translation>Full-HD-TV</translation>
    </message>
    <message>
        <source>Full HD TV TS</source>
        <translation>Full-HD-TV TS</translation>
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
        <translation>HD-Ready-TV</translation>
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
        <translation>Hochformat 4:5</translation>
    </message>
    <message>
        <source>Portrait 4K</source>
        <translation>Hochformat 4K</translation>
    </message>
    <message>
        <source>Portrait HD 1080P</source>
        <translation>Hochformat HD 1080P</translation>
    </message>
    <message>
        <source>Portrait HD 1200P</source>
        <translation>Hochformat HD 1200P</translation>
    </message>
    <message>
        <source>Portrait HD 720P</source>
        <translation>Hochformat HD 720P</translation>
    </message>
    <message>
        <source>Portrait SD 540P</source>
        <translation>Hochformat SD 540P</translation>
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
        <translation>Smart-TV 4K</translation>
    </message>
    <message>
        <source>Smart TV HD 1080P</source>
        <translation>Smart-TV HD 1080P</translation>
    </message>
    <message>
        <source>Smart TV HD 720P</source>
        <translation>Smart-TV HD 720P</translation>
    </message>
    <message>
        <source>Square HD 1080P</source>
        <translation>Quadrat HD 1080P</translation>
    </message>
    <message>
        <source>Square HD 720P</source>
        <translation>Quadrat HD 720P</translation>
    </message>
    <message>
        <source>Story HD 1080P</source>
        <translation>Story HD 1080P</translation>
    </message>
    <message>
        <source>TV Box 4K</source>
        <translation>TV-Box 4K</translation>
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
        <translation>Video- und Audiodateien</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>There are no video or audio files in the folder %1; add the files themselves</source>
        <translation>Im Ordner %1 sind keine Video- oder Audiodateien; fügen Sie die Dateien selbst hinzu</translation>
    </message>
    <message>
        <source>No file manager could be started to show the folder %1; open it by hand</source>
        <translation>Es ließ sich kein Dateimanager starten, um den Ordner %1 zu zeigen; öffnen Sie ihn von Hand</translation>
    </message>
    <message>
        <source>VexConvert can&apos;t open its window</source>
        <translation>VexConvert kann sein Fenster nicht öffnen</translation>
    </message>
    <message>
        <source>%1 is the earliest possible time</source>
        <translation>%1 ist der früheste mögliche Zeitpunkt</translation>
    </message>
    <message>
        <source>%1 is the latest possible time</source>
        <translation>%1 ist der späteste mögliche Zeitpunkt</translation>
    </message>
    <message>
        <source>For both pages; each can have its own settings below its list</source>
        <translation>Für beide Seiten; unter der Liste lässt sich jede eigens einstellen</translation>
    </message>
    <message>
        <source>This folder isn&apos;t there; choose another one</source>
        <translation>Diesen Ordner gibt es nicht; wählen Sie einen anderen</translation>
    </message>
    <message>
        <source>A name has no &quot;/&quot;; choose the folder in &quot;Save to&quot;</source>
        <translation>Ein Name enthält kein „/“; wählen Sie den Ordner bei „Speichern in“</translation>
    </message>
    <message>
        <source>About VexConvert</source>
        <translation>Über VexConvert</translation>
    </message>
    <message>
        <source>Add a number</source>
        <translation>Nummer anhängen</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>As many as suit this machine</source>
        <translation>Passend zum Rechner</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Wie der Desktop</translation>
    </message>
    <message>
        <source>Ask</source>
        <translation>Fragen</translation>
    </message>
    <message>
        <source>Conversions at once</source>
        <translation>Gleichzeitige Umwandlungen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Cut in the editor</source>
        <translation>Im Editor schneiden</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>For example %1</source>
        <translation>Zum Beispiel %1</translation>
    </message>
    <message>
        <source>Holidays</source>
        <translation>Urlaub</translation>
    </message>
    <message>
        <source>If a name is in use</source>
        <translation>Wenn ein Name vergeben ist</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Beide behalten</translation>
    </message>
    <message>
        <source>Language (from the next start)</source>
        <translation>Sprache (ab dem nächsten Start)</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Make the subfolders of an added folder, too</source>
        <translation>Unterordner eines hinzugefügten Ordners ebenfalls anlegen</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Namen</translation>
    </message>
    <message>
        <source>Names in use</source>
        <translation>Vergebene Namen</translation>
    </message>
    <message>
        <source>Names of the results</source>
        <translation>Namen der Ergebnisse</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Programmeinstellungen</translation>
    </message>
    <message>
        <source>Qt is under the LGPL 3, ffmpeg under the LGPL or the GPL.</source>
        <translation>Qt steht unter der LGPL 3, ffmpeg unter der LGPL oder der GPL.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Replace the file</source>
        <translation>Datei ersetzen</translation>
    </message>
    <message>
        <source>Show log</source>
        <translation>Protokoll zeigen</translation>
    </message>
    <message>
        <source>Estimate sizes from short samples</source>
        <translation>Größen mit kurzen Proben schätzen</translation>
    </message>
    <message>
        <source>Show no animations</source>
        <translation>Keine Animationen zeigen</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Skip the file</source>
        <translation>Datei überspringen</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Farbschema</translation>
    </message>
    <message>
        <source>There is no field {%1}; use %2</source>
        <translation>Es gibt kein Feld {%1}; möglich sind %2</translation>
    </message>
    <message>
        <source>These are replaced: %1</source>
        <translation>Ersetzt werden: %1</translation>
    </message>
    <message>
        <source>These files already exist:</source>
        <translation>Diese Dateien gibt es schon:</translation>
    </message>
    <message>
        <source>VexConvert is free software under the MIT licence.</source>
        <translation>VexConvert ist freie Software unter der MIT‑Lizenz.</translation>
    </message>
    <message>
        <source>Write a time such as 1:02:03.5</source>
        <translation>Schreiben Sie eine Zeit wie 1:02:03.5</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>ffmpeg hasn&apos;t run for this file yet</source>
        <translation>ffmpeg ist für diese Datei noch nicht gelaufen</translation>
    </message>
    <message>
        <source>was there already</source>
        <translation>war schon vorhanden</translation>
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
        <translation>Melden, wenn alle Dateien umgewandelt sind</translation>
    </message>
    <message>
        <source>%1 % smaller</source>
        <translation>%1 % kleiner</translation>
    </message>
    <message>
        <source>%1 % larger</source>
        <translation>%1 % größer</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausiert</translation>
    </message>
    <message>
        <source>%1 is a picture; add video or audio files</source>
        <translation>%1 ist ein Bild; fügen Sie Video- oder Audiodateien hinzu</translation>
    </message>
    <message>
        <source>%1 is a playlist; add the files that it names instead</source>
        <translation>%1 ist eine Wiedergabeliste; fügen Sie stattdessen die Dateien daraus hinzu</translation>
    </message>
    <message>
        <source>%1 is not on this computer; download it first and add the file</source>
        <translation>%1 liegt nicht auf diesem Rechner; laden Sie es herunter und fügen Sie die Datei hinzu</translation>
    </message>
    <message>
        <source>There is no file %1 any more; convert it again</source>
        <translation>Die Datei %1 gibt es nicht mehr; wandeln Sie sie noch einmal um</translation>
    </message>
    <message>
        <source>No player could be started for %1; open it by hand</source>
        <translation>Für %1 ließ sich kein Player starten; öffnen Sie die Datei selbst</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 Dateien</translation>
    </message>
    <message>
        <source>Already in the list: %1</source>
        <translation>Schon in der Liste: %1</translation>
    </message>
    <message>
        <source>Add again</source>
        <translation>Noch einmal hinzufügen</translation>
    </message>
    <message>
        <source>Removed: %1</source>
        <translation>Entfernt: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Converted already: %1</source>
        <translation>Schon umgewandelt: %1</translation>
    </message>
    <message>
        <source>Convert again</source>
        <translation>Noch einmal umwandeln</translation>
    </message>
    <message>
        <source>VexConvert was closed while it converted; Convert All goes on with what is left</source>
        <translation>VexConvert wurde beim Umwandeln beendet; „Alle umwandeln“ macht mit dem Rest weiter</translation>
    </message>
    <message>
        <source>about %1</source>
        <translation>etwa %1</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>höchstens %1</translation>
    </message>
    <message>
        <source>Files converted: %1</source>
        <translation>Umgewandelte Dateien: %1</translation>
    </message>
    <message>
        <source>failed: %1</source>
        <translation>fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>Unterbrochen</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>Sortieren nach</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Choose a format …</source>
        <translation>Format wählen …</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Follow “Convert all to”</source>
        <translation>„Alle umwandeln in“ folgen</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Alle auswählen</translation>
    </message>
    <message>
        <source>Ctrl+A</source>
        <translation>Strg+A</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%1 von %2 ausgewählt</translation>
    </message>
    <message>
        <source>Files: %1</source>
        <translation>Dateien: %1</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausieren</translation>
    </message>
    <message>
        <source>Clear converted</source>
        <translation>Umgewandelte entfernen</translation>
    </message>
    <message>
        <source>Stop converting?</source>
        <translation>Umwandeln abbrechen?</translation>
    </message>
    <message>
        <source>The list is kept: you can convert the rest the next time.</source>
        <translation>Die Liste bleibt erhalten: Den Rest können Sie das nächste Mal umwandeln.</translation>
    </message>
    <message>
        <source>Stop and close</source>
        <translation>Abbrechen und schließen</translation>
    </message>
    <message>
        <source>Keep converting</source>
        <translation>Weiter umwandeln</translation>
    </message>
    <message>
        <source>Use %1</source>
        <translation>%1 verwenden</translation>
    </message>
    <message>
        <source>Audio tracks</source>
        <translation>Tonspuren</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation>Untertitel</translation>
    </message>
    <message>
        <source>No audio tracks or subtitles</source>
        <translation>Keine Tonspuren oder Untertitel</translation>
    </message>
    <message>
        <source>Default track</source>
        <translation>Standardspur</translation>
    </message>
    <message>
        <source>Default track: %1</source>
        <translation>Standardspur: %1</translation>
    </message>
    <message>
        <source>Burn in</source>
        <translation>Einbrennen</translation>
    </message>
    <message>
        <source>Burn in: %1</source>
        <translation>Einbrennen: %1</translation>
    </message>
    <message>
        <source>Draws these subtitles onto the picture</source>
        <translation>Zeichnet diese Untertitel ins Bild</translation>
    </message>
    <message>
        <source>Show tracks</source>
        <translation>Spuren zeigen</translation>
    </message>
    <message>
        <source>Hide tracks</source>
        <translation>Spuren ausblenden</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>not in .%1</source>
        <translation>nicht in .%1</translation>
    </message>
    <message>
        <source>forced</source>
        <translation>erzwungen</translation>
    </message>
    <message>
        <source>%1 channels</source>
        <translation>%1 Kanäle</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Found by: %1</source>
        <translation>Gefunden über: %1</translation>
    </message>
    <message>
        <source>Can’t be used: %1</source>
        <translation>Nicht möglich: %1</translation>
    </message>
    <message>
        <source>Remove from the favorites</source>
        <translation>Aus den Favoriten entfernen</translation>
    </message>
    <message>
        <source>Add to the favorites</source>
        <translation>Zu den Favoriten hinzufügen</translation>
    </message>
    <message>
        <source>More about %1</source>
        <translation>Mehr zu %1</translation>
    </message>
    <message>
        <source>Find a preset</source>
        <translation>Voreinstellung suchen</translation>
    </message>
    <message>
        <source>Find a preset (Ctrl+F)</source>
        <translation>Voreinstellung suchen (Strg+F)</translation>
    </message>
    <message>
        <source>Import or export presets</source>
        <translation>Voreinstellungen importieren oder exportieren</translation>
    </message>
    <message>
        <source>Import presets …</source>
        <translation>Voreinstellungen importieren …</translation>
    </message>
    <message>
        <source>Import presets</source>
        <translation>Voreinstellungen importieren</translation>
    </message>
    <message>
        <source>Export presets</source>
        <translation>Voreinstellungen exportieren</translation>
    </message>
    <message>
        <source>Export all my presets …</source>
        <translation>Alle eigenen exportieren …</translation>
    </message>
    <message>
        <source>For the selected files: %1</source>
        <translation>Für die ausgewählten Dateien: %1</translation>
    </message>
    <message>
        <source>For all files</source>
        <translation>Für alle Dateien</translation>
    </message>
    <message>
        <source>Presets: %1</source>
        <translation>Voreinstellungen: %1</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
    <message>
        <source>Note …</source>
        <translation>Notiz …</translation>
    </message>
    <message>
        <source>Use this preset</source>
        <translation>Diese Voreinstellung verwenden</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Strg+D</translation>
    </message>
    <message>
        <source>F2</source>
        <translation>F2</translation>
    </message>
    <message>
        <source>Alt+Up</source>
        <translation>Alt+Auf</translation>
    </message>
    <message>
        <source>Alt+Down</source>
        <translation>Alt+Ab</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>What has been changed …</source>
        <translation>Was geändert ist …</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Default on the command line for</source>
        <translation>Vorgabe der Befehlszeile für</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Videos</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>Audiodateien</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Export …</source>
        <translation>Exportieren …</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>My presets</source>
        <translation>Eigene</translation>
    </message>
    <message>
        <source>Try 10 seconds</source>
        <translation>10 Sekunden ausprobieren</translation>
    </message>
    <message>
        <source>Changes in “%1”</source>
        <translation>Änderungen an „%1“</translation>
    </message>
    <message>
        <source>It isn’t known what this preset was made from.</source>
        <translation>Es ist nicht bekannt, woraus diese Voreinstellung entstand.</translation>
    </message>
    <message>
        <source>None: all values are those of %1.</source>
        <translation>Keine: Alle Werte sind die von %1.</translation>
    </message>
    <message>
        <source>It was made from %1, with these changes:</source>
        <translation>Sie entstand aus %1, mit diesen Änderungen:</translation>
    </message>
    <message>
        <source>Take back</source>
        <translation>Zurücknehmen</translation>
    </message>
    <message>
        <source>Take all back</source>
        <translation>Alles zurücknehmen</translation>
    </message>
    <message>
        <source>new</source>
        <translation>neu</translation>
    </message>
    <message>
        <source>already there</source>
        <translation>schon vorhanden</translation>
    </message>
    <message>
        <source>another one is there</source>
        <translation>andere vorhanden</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>abgelehnt</translation>
    </message>
    <message>
        <source>If you have another one of this title and format</source>
        <translation>Wenn Titel und Format schon vergeben sind</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Trying 10 seconds of %1 …</source>
        <translation>10 Sekunden von %1 werden ausprobiert …</translation>
    </message>
    <message>
        <source>All of %1 would be about %2.</source>
        <translation>%1 ergäbe ganz etwa %2.</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Noch einmal abspielen</translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (Kopie)</translation>
    </message>
    <message>
        <source>a preset that is no longer there</source>
        <translation>einer Voreinstellung, die es nicht mehr gibt</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Rückgängig gemacht: %1</translation>
    </message>
    <message>
        <source>%1 presets</source>
        <translation>%1 Voreinstellungen</translation>
    </message>
    <message>
        <source>Presets changed: %1</source>
        <translation>Geänderte Voreinstellungen: %1</translation>
    </message>
    <message>
        <source>Changed: %1</source>
        <translation>Geändert: %1</translation>
    </message>
    <message>
        <source>Deleted: %1</source>
        <translation>Gelöscht: %1</translation>
    </message>
    <message>
        <source>The temporary folder can’t be written (%1); check the disk</source>
        <translation>In den temporären Ordner kann nicht geschrieben werden (%1); prüfen Sie den Datenträger</translation>
    </message>
    <message>
        <source>good for “%1”</source>
        <translation>gut für „%1“</translation>
    </message>
    <message>
        <source>Type a device, a site, a codec, a size or a purpose, such as “iphone 1080” or “small”.</source>
        <translation>Geben Sie ein Gerät, eine Website, einen Codec, eine Größe oder einen Zweck ein, etwa „iphone 1080“ oder „klein“.</translation>
    </message>
    <message>
        <source>No preset has all of this; leave out a word or a filter.</source>
        <translation>Keine Voreinstellung passt zu allem; lassen Sie ein Wort oder einen Filter weg.</translation>
    </message>
    <message>
        <source>No preset is known for “%1”.</source>
        <translation>Zu „%1“ ist keine Voreinstellung bekannt.</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>Recently used</source>
        <translation>Zuletzt verwendet</translation>
    </message>
    <message>
        <source>mono</source>
        <translation>mono</translation>
    </message>
    <message>
        <source>stereo</source>
        <translation>stereo</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatisch</translation>
    </message>
    <message>
        <source>You have no presets of your own yet.</source>
        <translation>Sie haben noch keine eigenen Voreinstellungen.</translation>
    </message>
    <message>
        <source>Exported: %1</source>
        <translation>Exportiert: %1</translation>
    </message>
    <message>
        <source>%1 can’t be written (%2); choose another folder</source>
        <translation>%1 kann nicht geschrieben werden (%2); wählen Sie einen anderen Ordner</translation>
    </message>
    <message>
        <source>Presets imported: %1</source>
        <translation>Importierte Voreinstellungen: %1</translation>
    </message>
    <message>
        <source>Files of presets</source>
        <translation>Dateien mit Voreinstellungen</translation>
    </message>
    <message>
        <source>approximated</source>
        <translation>angenähert</translation>
    </message>
    <message>
        <source>lost</source>
        <translation>entfällt</translation>
    </message>
    <message>
        <source>No preset was imported.</source>
        <translation>Keine Voreinstellung wurde importiert.</translation>
    </message>
    <message>
        <source>no file yet</source>
        <translation>noch keine Datei</translation>
    </message>
</context>
<context>
    <name>OutputStreams</name>
    <message>
        <source>has no video; choose an audio preset</source>
        <translation>enthält kein Video; wählen Sie ein Audioformat</translation>
    </message>
    <message>
        <source>has no audio; choose a video preset</source>
        <translation>enthält keinen Ton; wählen Sie ein Videoformat</translation>
    </message>
    <message>
        <source>a .%1 file can&apos;t hold video; choose an audio preset</source>
        <translation>eine .%1-Datei kann kein Video enthalten; wählen Sie ein Audioformat</translation>
    </message>
    <message>
        <source>is a single picture and makes no film; on the command line, --duration SECONDS shows it for so long</source>
        <translation>ist ein einzelnes Bild und ergibt keinen Film; auf der Befehlszeile zeigt --duration SECONDS es so lange</translation>
    </message>
    <message>
        <source>has %1 audio tracks, so no number %2; choose another one</source>
        <translation>enthält %1 Tonspuren, also keine Nummer %2; wählen Sie eine andere</translation>
    </message>
    <message>
        <source>none of its audio tracks is kept; keep one</source>
        <translation>keine seiner Tonspuren wird behalten; behalten Sie eine</translation>
    </message>
</context>
<context>
    <name>EncoderChoice</name>
    <message>
        <source>needs the encoder %1 for %2, which this ffmpeg lacks; choose a preset with another encoder or install an ffmpeg that has it</source>
        <translation>braucht für %2 den Encoder %1, der diesem ffmpeg fehlt; wählen Sie ein Format mit einem anderen Encoder oder installieren Sie ein ffmpeg, das ihn hat</translation>
    </message>
    <message>
        <source> or </source>
        <translation> oder </translation>
    </message>
</context>
<context>
    <name>RateControl</name>
    <message>
        <source>says no length, so that no bitrate gives it the asked size; choose a bitrate instead</source>
        <translation>gibt keine Länge an, sodass keine Bitrate die gewünschte Größe ergibt; wählen Sie stattdessen eine Bitrate</translation>
    </message>
    <message>
        <source>is too long for the asked size; choose a larger size or less audio</source>
        <translation>ist zu lang für die gewünschte Größe; wählen Sie eine größere oder weniger Ton</translation>
    </message>
</context>
<context>
    <name>EncoderList</name>
    <message>
        <source>%1 doesn&apos;t list its encoders (%2); check that &quot;%1 -encoders&quot; works, or install another ffmpeg</source>
        <translation>%1 nennt seine Encoder nicht (%2); prüfen Sie, ob „%1 -encoders“ sie auflistet, oder installieren Sie ein anderes ffmpeg</translation>
    </message>
</context>
<context>
    <name>Conversion</name>
    <message>
        <source>the disk with %1 is full; free some space or choose another folder</source>
        <translation>der Datenträger mit %1 ist voll; schaffen Sie Platz oder wählen Sie einen anderen Ordner</translation>
    </message>
    <message>
        <source>ffmpeg couldn&apos;t convert it (%1); check the file or try another preset</source>
        <translation>ffmpeg konnte die Datei nicht umwandeln (%1); prüfen Sie sie oder versuchen Sie ein anderes Format</translation>
    </message>
    <message>
        <source>ffmpeg wrote a file that can&apos;t be played; try another preset</source>
        <translation>ffmpeg hat eine nicht abspielbare Datei geschrieben; versuchen Sie ein anderes Format</translation>
    </message>
    <message>
        <source>holds %1 of %2 s: the source ends early or is damaged</source>
        <translation>enthält %1 von %2 s: die Quelle endet zu früh oder ist beschädigt</translation>
    </message>
    <message>
        <source>its video is HDR, and this ffmpeg can&apos;t map that to ordinary colours; install an ffmpeg with zscale and tonemap</source>
        <translation>das Video ist HDR, und dieses ffmpeg kann es nicht in gewöhnliche Farben umsetzen; installieren Sie ein ffmpeg mit zscale und tonemap</translation>
    </message>
    <message>
        <source>the encoder refuses these settings</source>
        <translation>der Encoder lehnt diese Einstellungen ab</translation>
    </message>
    <message>
        <source>this kind of file can&apos;t hold one of the streams</source>
        <translation>diese Dateiart kann eine der Spuren nicht enthalten</translation>
    </message>
    <message>
        <source>the source doesn&apos;t say when its frames are shown</source>
        <translation>die Quelle sagt nicht, wann ihre Bilder gezeigt werden</translation>
    </message>
</context>
<context>
    <name>MediaInput</name>
    <message>
        <source>is a playlist; choose the files that it lists</source>
        <translation>ist eine Wiedergabeliste; wählen Sie die Dateien, die darin stehen</translation>
    </message>
    <message>
        <source>stands for an image sequence; rename it and its folders without any of % * ? [ ] { }</source>
        <translation>steht für eine Bildfolge; benennen Sie Datei und Ordner ohne % * ? [ ] { }</translation>
    </message>
    <message>
        <source>is of a kind that isn&apos;t converted (%1); choose a video or audio file</source>
        <translation>ist von einer Art, die nicht umgewandelt wird (%1); wählen Sie eine Video- oder Audiodatei</translation>
    </message>
</context>
<context>
    <name>MediaProbe</name>
    <message>
        <source>no such file; check its name</source>
        <translation>die Datei gibt es nicht; prüfen Sie ihren Namen</translation>
    </message>
    <message>
        <source>this is a folder; name the files in it</source>
        <translation>das ist ein Ordner; wählen Sie die Dateien darin</translation>
    </message>
    <message>
        <source>cannot be read as media (%1); check that it is a complete video or audio file</source>
        <translation>ist nicht als Video oder Audio lesbar (%1); prüfen Sie, ob die Datei vollständig ist</translation>
    </message>
    <message>
        <source>holds neither video nor audio; choose a video or audio file</source>
        <translation>enthält weder Video noch Audio; wählen Sie eine Video- oder Audiodatei</translation>
    </message>
    <message>
        <source>takes too long to read; check the disk or network that it is on</source>
        <translation>braucht zu lange zum Lesen; prüfen Sie den Datenträger oder das Netzwerk, wo sie liegt</translation>
    </message>
    <message>
        <source>describes itself without end; check that it is a complete video or audio file</source>
        <translation>beschreibt sich ohne Ende; prüfen Sie, ob es eine vollständige Video- oder Audiodatei ist</translation>
    </message>
</context>
<context>
    <name>OutputSettings</name>
    <message>
        <source>files of the kind &quot;.%1&quot; can&apos;t be written; choose another preset</source>
        <translation>Dateien der Art „.%1“ können nicht geschrieben werden; wählen Sie ein anderes Format</translation>
    </message>
    <message>
        <source>no encoder has a name like &quot;%1&quot;; choose another preset</source>
        <translation>kein Encoder heißt so wie „%1“; wählen Sie ein anderes Format</translation>
    </message>
    <message>
        <source>the preset&apos;s %1 is %2; it must be 0 or %3; choose another preset</source>
        <translation>%1 ist im Format %2; erlaubt sind 0 oder %3; wählen Sie ein anderes Format</translation>
    </message>
    <message>
        <source>not a valid number</source>
        <translation>keine gültige Zahl</translation>
    </message>
    <message>
        <source>the part to keep must begin at 0 or later and end after that; choose another part</source>
        <translation>der Ausschnitt muss bei 0 oder später beginnen und danach enden; wählen Sie einen anderen</translation>
    </message>
</context>
<context>
    <name>PendingFile</name>
    <message>
        <source>the folder %1 doesn&apos;t exist; make it or choose another one</source>
        <translation>den Ordner %1 gibt es nicht; legen Sie ihn an oder wählen Sie einen anderen</translation>
    </message>
    <message>
        <source>can&apos;t write into the folder %1 (%2); choose another one</source>
        <translation>in den Ordner %1 kann nicht geschrieben werden (%2); wählen Sie einen anderen</translation>
    </message>
    <message>
        <source>the result couldn&apos;t get its name in %1 (%2); choose another folder</source>
        <translation>das Ergebnis konnte in %1 seinen Namen nicht bekommen (%2); wählen Sie einen anderen Ordner</translation>
    </message>
</context>
<context>
    <name>PresetStore</name>
    <message>
        <source>can&apos;t write into the configuration folder %1 (%2); check its disk and its permissions</source>
        <translation>in den Konfigurationsordner %1 kann nicht geschrieben werden (%2); prüfen Sie Datenträger und Rechte</translation>
    </message>
    <message>
        <source>can&apos;t write %1, which is as before; check its disk and its permissions</source>
        <translation>%1 kann nicht geschrieben werden und ist wie zuvor; prüfen Sie Datenträger und Rechte</translation>
    </message>
</context>
<context>
    <name>Tool</name>
    <message>
        <source>%1 is not on the PATH; install ffmpeg (Debian: apt-get install ffmpeg) and try again</source>
        <translation>%1 ist nicht im PATH; installieren Sie ffmpeg (Debian: apt-get install ffmpeg) und versuchen Sie es noch einmal</translation>
    </message>
    <message>
        <source>%1 couldn&apos;t be started (%2); close other programs or raise your limits on open files and processes (ulimit -n, ulimit -u), and try again</source>
        <translation>%1 konnte nicht gestartet werden (%2); schließen Sie andere Programme oder erhöhen Sie die Grenzen für offene Dateien und Prozesse (ulimit -n, ulimit -u) und versuchen Sie es noch einmal</translation>
    </message>
</context>
<context>
    <name>ToolRun</name>
    <message>
        <source>%1 stopped without saying why</source>
        <translation>%1 wurde ohne Angabe eines Grundes beendet</translation>
    </message>
    <message>
        <source>%1 took too long</source>
        <translation>%1 hat zu lange gebraucht</translation>
    </message>
    <message>
        <source>%1 printed too much</source>
        <translation>%1 hat zu viel ausgegeben</translation>
    </message>
</context>
<context>
    <name>FolderLock</name>
    <message>
        <source>another program</source>
        <translation>ein anderes Programm</translation>
    </message>
    <message>
        <source>%1 (process %2 on %3)</source>
        <translation>%1 (Prozess %2 auf %3)</translation>
    </message>
    <message>
        <source>can&apos;t write into the configuration folder %1 (%2); name another one</source>
        <translation>in den Konfigurationsordner %1 kann nicht geschrieben werden (%2); nennen Sie einen anderen</translation>
    </message>
    <message>
        <source>%1 is using the presets in %2; close it, or try again when it is done</source>
        <translation>%1 arbeitet mit den Formaten in %2; schließen Sie es oder versuchen Sie es danach noch einmal</translation>
    </message>
    <message>
        <source>%1 is no plain file; remove it</source>
        <translation>%1 ist keine gewöhnliche Datei; löschen Sie es</translation>
    </message>
    <message>
        <source>waiting for %1, which is using the presets in %2</source>
        <translation>%1 arbeitet mit den Formaten in %2; es wird gewartet</translation>
    </message>
</context>
<context>
    <name>UserFile</name>
    <message>
        <source>%1 is no file; move it away</source>
        <translation>%1 ist keine Datei; entfernen Sie es von dort</translation>
    </message>
    <message>
        <source>%1 has %2, and no more than %3 are read; move it away to start anew</source>
        <translation>%1 hat %2, gelesen werden höchstens %3; entfernen Sie die Datei, um neu zu beginnen</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read (%2); check its permissions</source>
        <translation>%1 ist nicht lesbar (%2); prüfen Sie die Rechte</translation>
    </message>
    <message>
        <source>%1 is missing; put its last good copy, %2, in its place</source>
        <translation>%1 fehlt; setzen Sie die letzte gute Kopie, %2, an ihre Stelle</translation>
    </message>
    <message>
        <source>%1 is damaged; put its last good copy, %2, in its place</source>
        <translation>%1 ist beschädigt; setzen Sie die letzte gute Kopie, %2, an ihre Stelle</translation>
    </message>
    <message>
        <source>%1 is empty and there is no good copy of it; remove it to start anew</source>
        <translation>%1 ist leer und es gibt keine gute Kopie; löschen Sie die Datei, um neu zu beginnen</translation>
    </message>
    <message>
        <source>%1 is damaged and there is no good copy of it; fix it, or move it away to start anew</source>
        <translation>%1 ist beschädigt und es gibt keine gute Kopie; reparieren Sie die Datei oder entfernen Sie sie, um neu zu beginnen</translation>
    </message>
    <message>
        <source>%1 was empty and there is no good copy of it</source>
        <translation>%1 war leer und es gibt keine gute Kopie</translation>
    </message>
    <message>
        <source>%1 was damaged and there is no good copy of it; it is kept as %2</source>
        <translation>%1 war beschädigt und es gibt keine gute Kopie; die Datei ist als %2 aufgehoben</translation>
    </message>
    <message>
        <source>%1 was damaged; its last good copy, %2, is in its place, and the damaged file is kept as %3</source>
        <translation>%1 war beschädigt; an ihrer Stelle steht jetzt die letzte gute Kopie, %2, und die beschädigte Datei ist als %3 aufgehoben</translation>
    </message>
    <message>
        <source>%1 was missing; its last good copy, %2, is in its place</source>
        <translation>%1 fehlte; an ihrer Stelle steht jetzt die letzte gute Kopie, %2</translation>
    </message>
    <message>
        <source>%1 was missing and its copy, %2, is damaged</source>
        <translation>%1 fehlte und die Kopie, %2, ist beschädigt</translation>
    </message>
    <message>
        <source>%1 was empty; its last good copy, %2, is in its place</source>
        <translation>%1 war leer; an ihrer Stelle steht jetzt die letzte gute Kopie, %2</translation>
    </message>
    <message>
        <source>can&apos;t write %1 (%2), which is as before; check its disk and its permissions</source>
        <translation>%1 kann nicht geschrieben werden (%2) und ist wie zuvor; prüfen Sie Datenträger und Rechte</translation>
    </message>
    <message>
        <source>can&apos;t keep the unusable presets of %1 in %2 (%3); check its disk and its permissions</source>
        <translation>die unbrauchbaren Formate aus %1 lassen sich nicht in %2 aufheben (%3); prüfen Sie Datenträger und Rechte</translation>
    </message>
    <message>
        <source>%1 holds presets without settings (&quot;outPutNode&quot;), which can&apos;t be used; they are kept in %2</source>
        <translation>%1 enthält Formate ohne Einstellungen (&quot;outPutNode&quot;), die unbrauchbar sind; sie sind in %2 aufgehoben</translation>
    </message>
</context>
<context>
    <name>Losses</name>
    <message>
        <source>left out: %1</source>
        <translation>weggelassen: %1</translation>
    </message>
    <message>
        <source>%1 of %2 audio tracks (.%3 holds %4, .%5 holds all)</source>
        <translation>%1 von %2 Tonspuren (.%3 enthält %4, .%5 alle)</translation>
    </message>
    <message>
        <source>subtitle tracks: %1 (%2; .%3 doesn&apos;t hold them, .%4 does)</source>
        <translation>Untertitelspuren: %1 (%2; nicht in .%3 möglich, in .%4 schon)</translation>
    </message>
    <message>
        <source>subtitle tracks: %1 (%2; no format holds them)</source>
        <translation>Untertitelspuren: %1 (%2; in keinem Format möglich)</translation>
    </message>
    <message>
        <source>subtitle tracks: %1 (%2; they can&apos;t be written into this .%3)</source>
        <translation>Untertitelspuren: %1 (%2; nicht in diese .%3 zu schreiben)</translation>
    </message>
    <message>
        <source>more video tracks: %1 (a result has one)</source>
        <translation>weitere Videospuren: %1 (ein Ergebnis hat eine)</translation>
    </message>
    <message>
        <source>attachments: %1 (.%2 doesn&apos;t hold them, .mkv does)</source>
        <translation>Anhänge: %1 (nicht in .%2 möglich, in .mkv schon)</translation>
    </message>
    <message>
        <source>chapters: %1 (.%2 doesn&apos;t hold them, .%3 does)</source>
        <translation>Kapitel: %1 (nicht in .%2 möglich, in .%3 schon)</translation>
    </message>
    <message>
        <source>the cover (.%1 doesn&apos;t hold it, .%2 does)</source>
        <translation>das Titelbild (nicht in .%1 möglich, in .%2 schon)</translation>
    </message>
</context>
<context>
    <name>SubtitlePlan</name>
    <message>
        <source>has %1 subtitle tracks, so no number %2; choose another one</source>
        <translation>enthält %1 Untertitelspuren, also keine Nummer %2; wählen Sie eine andere</translation>
    </message>
</context>
<context>
    <name>KeptQueue</name>
    <message>
        <source>it is of a newer version of the program</source>
        <translation>sie stammt von einer neueren Version des Programms</translation>
    </message>
    <message>
        <source>it holds no list of files</source>
        <translation>sie enthält keine Dateiliste</translation>
    </message>
    <message>
        <source>The list of files of the last time can&apos;t be read (%1); it is now %2, and the window starts empty</source>
        <translation>Die Dateiliste vom letzten Mal ist nicht lesbar (%1); sie heißt jetzt %2, und das Fenster beginnt leer</translation>
    </message>
    <message>
        <source>The list of files of the last time can&apos;t be read (%1); remove %2 to let a new one be kept</source>
        <translation>Die Dateiliste vom letzten Mal ist nicht lesbar (%1); entfernen Sie %2, damit eine neue gesichert werden kann</translation>
    </message>
    <message>
        <source>The list of files can&apos;t be kept in %1 (%2); free some space or check the folder&apos;s permissions</source>
        <translation>Die Dateiliste lässt sich nicht in %1 sichern (%2); schaffen Sie Platz oder prüfen Sie die Rechte des Ordners</translation>
    </message>
</context>
<context>
    <name>CodecWords</name>
    <message>
        <source>more than 8 bits only where the source has them</source>
        <translation>mehr als 8 Bit nur, wo die Quelle sie hat</translation>
    </message>
    <message>
        <source>%1 is written without the graphics card</source>
        <translation>%1 wird ohne die Grafikkarte geschrieben</translation>
    </message>
    <message>
        <source>audio of another codec is encoded</source>
        <translation>Ton mit anderem Codec wird neu codiert</translation>
    </message>
    <message>
        <source>AAC without its high-efficiency extension</source>
        <translation>AAC ohne die High-Efficiency-Erweiterung</translation>
    </message>
    <message>
        <source>the encoder&apos;s usual speed</source>
        <translation>die übliche Geschwindigkeit des Encoders</translation>
    </message>
    <message>
        <source>%1 isn&apos;t tuned so</source>
        <translation>%1 wird nicht so abgestimmt</translation>
    </message>
    <message>
        <source>the encoder chooses the profile</source>
        <translation>der Encoder wählt das Profil</translation>
    </message>
    <message>
        <source>the encoder chooses the level</source>
        <translation>der Encoder wählt den Level</translation>
    </message>
    <message>
        <source>the encoder chooses the key frames</source>
        <translation>der Encoder wählt die Keyframes</translation>
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
        <translation>dieselbe Zahl für einen anderen Encoder</translation>
    </message>
    <message>
        <source>the average bitrate is reached in one pass</source>
        <translation>die mittlere Bitrate wird in einem Durchgang erreicht</translation>
    </message>
    <message>
        <source>a variable rate stays variable where the format has it</source>
        <translation>eine variable Bildrate bleibt variabel, wo das Format sie kennt</translation>
    </message>
    <message>
        <source>the rate is a limit; slower sources keep theirs</source>
        <translation>die Bildrate ist eine Obergrenze; langsamere Quellen behalten ihre</translation>
    </message>
    <message>
        <source>each source&apos;s track is written once</source>
        <translation>jede Spur der Quelle wird einmal geschrieben</translation>
    </message>
    <message>
        <source>all tracks; &quot;convert --audio&quot; chooses</source>
        <translation>alle Spuren; wählen Sie in der Zeile der Datei</translation>
    </message>
    <message>
        <source>the source&apos;s codec</source>
        <translation>der Codec der Quelle</translation>
    </message>
    <message>
        <source>the encoder&apos;s good quality</source>
        <translation>die gute Qualität des Encoders</translation>
    </message>
    <message>
        <source>plain stereo</source>
        <translation>einfaches Stereo</translation>
    </message>
    <message>
        <source>the source&apos;s channels</source>
        <translation>die Kanäle der Quelle</translation>
    </message>
    <message>
        <source>the loudness stays as it is</source>
        <translation>die Lautstärke bleibt, wie sie ist</translation>
    </message>
    <message>
        <source>a folder</source>
        <translation>ein Ordner</translation>
    </message>
    <message>
        <source>folders are nested too deeply</source>
        <translation>die Ordner sind zu tief verschachtelt</translation>
    </message>
    <message>
        <source>has no &quot;VideoEncoder&quot; or no &quot;FileFormat&quot;</source>
        <translation>hat kein „VideoEncoder“ oder kein „FileFormat“</translation>
    </message>
    <message>
        <source>is one of more than %1</source>
        <translation>ist eine von mehr als %L1</translation>
    </message>
    <message>
        <source>the encoder&apos;s own value</source>
        <translation>der eigene Wert des Encoders</translation>
    </message>
</context>
<context>
    <name>HandBrakeLeftovers</name>
    <message>
        <source>the source&apos;s delays are kept</source>
        <translation>Verzögerungen der Quelle bleiben</translation>
    </message>
    <message>
        <source>parameters stand only at the file&apos;s start</source>
        <translation>Parameter stehen nur am Anfang der Datei</translation>
    </message>
    <message>
        <source>the source&apos;s tags are kept</source>
        <translation>die Metadaten der Quelle bleiben</translation>
    </message>
    <message>
        <source>the file isn&apos;t marked for the first iPods</source>
        <translation>die Datei wird nicht für die ersten iPods gekennzeichnet</translation>
    </message>
    <message>
        <source>small pictures stay small</source>
        <translation>kleine Bilder bleiben klein</translation>
    </message>
    <message>
        <source>colours aren&apos;t smoothed</source>
        <translation>Farben werden nicht geglättet</translation>
    </message>
    <message>
        <source>the source&apos;s colours are kept</source>
        <translation>die Farben der Quelle bleiben</translation>
    </message>
    <message>
        <source>blocks aren&apos;t smoothed</source>
        <translation>Blöcke werden nicht geglättet</translation>
    </message>
    <message>
        <source>sources that say they are interlaced are deinterlaced</source>
        <translation>Quellen, die sich als Halbbilder ausweisen, werden zu Vollbildern</translation>
    </message>
    <message>
        <source>noise isn&apos;t removed</source>
        <translation>Rauschen wird nicht entfernt</translation>
    </message>
    <message>
        <source>telecine isn&apos;t undone</source>
        <translation>Telecine wird nicht rückgängig gemacht</translation>
    </message>
    <message>
        <source>the source&apos;s pixel shape is used</source>
        <translation>die Pixelform der Quelle wird benutzt</translation>
    </message>
    <message>
        <source>the picture isn&apos;t distorted</source>
        <translation>das Bild wird nicht verzerrt</translation>
    </message>
    <message>
        <source>square pixels in a picture of the same shape</source>
        <translation>quadratische Pixel in einem Bild derselben Form</translation>
    </message>
    <message>
        <source>no borders are added</source>
        <translation>keine Ränder kommen hinzu</translation>
    </message>
    <message>
        <source>the picture isn&apos;t turned</source>
        <translation>das Bild wird nicht gedreht</translation>
    </message>
    <message>
        <source>the picture isn&apos;t sharpened</source>
        <translation>das Bild wird nicht geschärft</translation>
    </message>
    <message>
        <source>the height follows from the picture&apos;s shape</source>
        <translation>die Höhe folgt aus der Form des Bildes</translation>
    </message>
    <message>
        <source>the width follows from the picture&apos;s shape</source>
        <translation>die Breite folgt aus der Form des Bildes</translation>
    </message>
    <message>
        <source>closed captions aren&apos;t taken</source>
        <translation>Closed Captions werden nicht übernommen</translation>
    </message>
    <message>
        <source>&quot;convert --burn-subtitles&quot; chooses a track</source>
        <translation>wählen Sie die Spur zum Einbrennen in der Zeile der Datei</translation>
    </message>
    <message>
        <source>&quot;convert --subtitles&quot; chooses tracks</source>
        <translation>wählen Sie Spuren in der Zeile der Datei</translation>
    </message>
    <message>
        <source>all that the format holds; &quot;convert --subtitles&quot; chooses</source>
        <translation>alle, die das Format fasst; wählen Sie in der Zeile der Datei</translation>
    </message>
    <message>
        <source>the picture stays in colour</source>
        <translation>das Bild bleibt farbig</translation>
    </message>
    <message>
        <source>the encoder&apos;s own values</source>
        <translation>die eigenen Werte des Encoders</translation>
    </message>
    <message>
        <source>nothing is cut off</source>
        <translation>nichts wird abgeschnitten</translation>
    </message>
    <message>
        <source>black borders stay</source>
        <translation>schwarze Ränder bleiben</translation>
    </message>
    <message>
        <source>isn&apos;t known</source>
        <translation>ist unbekannt</translation>
    </message>
</context>
<context>
    <name>Melt</name>
    <message>
        <source>isn&apos;t used</source>
        <translation>wird nicht benutzt</translation>
    </message>
    <message>
        <source>as many bits and colours as the codec keeps</source>
        <translation>so viele Bits und Farben, wie der Codec behält</translation>
    </message>
    <message>
        <source>isn&apos;t used; the converter has a way of its own</source>
        <translation>wird nicht benutzt; der Konverter macht es auf seine Weise</translation>
    </message>
    <message>
        <source>the encoder&apos;s good quality</source>
        <translation>die gute Qualität des Encoders</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %L1</translation>
    </message>
</context>
<context>
    <name>PresetFile</name>
    <message>
        <source>&quot;%1&quot; is not a known key</source>
        <translation>„%1“ ist kein bekannter Schlüssel</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be an object</source>
        <translation>„%1“ muss ein Objekt sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a text</source>
        <translation>„%1“ muss ein Text sein</translation>
    </message>
    <message>
        <source>&quot;settings.%1&quot; is not a known key</source>
        <translation>„settings.%1“ ist kein bekannter Schlüssel</translation>
    </message>
    <message>
        <source>&quot;settings.%1&quot; must be a text</source>
        <translation>„settings.%1“ muss ein Text sein</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>muss ein Objekt sein</translation>
    </message>
    <message>
        <source>is one of more than %1</source>
        <translation>ist eine von mehr als %L1</translation>
    </message>
    <message>
        <source>%1: %2 at byte %3</source>
        <translation>%1: %2 bei Byte %L3</translation>
    </message>
    <message>
        <source>%1 has neither a list &quot;presets&quot; nor a list &quot;PresetList&quot;; it is no file of presets</source>
        <translation>%1 hat weder eine Liste „presets“ noch eine Liste „PresetList“ und ist keine Datei mit Voreinstellungen</translation>
    </message>
    <message>
        <source>%1 has the version %2, and only version %3 can be read; export it again with this version of vexconvert</source>
        <translation>%1 hat die Version %2, lesbar ist nur Version %3; exportieren Sie die Datei erneut mit dieser Version von vexconvert</translation>
    </message>
    <message>
        <source>%1 is no file of presets of vexconvert, HandBrake, Kdenlive or Shotcut</source>
        <translation>%1 ist keine Datei mit Voreinstellungen von vexconvert, HandBrake, Kdenlive oder Shotcut</translation>
    </message>
</context>
<context>
    <name>PresetImport</name>
    <message>
        <source>its title must have 1 to %1 characters that can be seen</source>
        <translation>der Titel muss 1 bis %L1 sichtbare Zeichen haben</translation>
    </message>
    <message>
        <source>its note is longer than %1 characters</source>
        <translation>die Notiz ist länger als %L1 Zeichen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; isn&apos;t possible for %2</source>
        <translation>„%1“ ist für %2 nicht möglich</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written into .%2 files</source>
        <translation>%1 kann nicht in .%2-Dateien geschrieben werden</translation>
    </message>
    <message>
        <source>no format here writes video into .%1 files</source>
        <translation>kein Format schreibt hier Video in .%1-Dateien</translation>
    </message>
    <message>
        <source>no format here writes audio alone into .%1 files</source>
        <translation>kein Format schreibt hier nur Ton in .%1-Dateien</translation>
    </message>
    <message>
        <source>its base %1 isn&apos;t in this catalogue; %2 stands in for it</source>
        <translation>die Vorlage %1 gibt es hier nicht; %2 vertritt sie</translation>
    </message>
    <message>
        <source>nothing is imported, as %1 of %2 presets are refused; leave them out with --skip-refused</source>
        <translation>nichts wird importiert, da %1 von %2 Voreinstellungen abgelehnt sind; --skip-refused lässt sie weg</translation>
    </message>
    <message>
        <source>preset %1 isn&apos;t yours; only your own can be exported</source>
        <translation>die Voreinstellung %1 ist keine eigene; nur eigene können exportiert werden</translation>
    </message>
</context>
<context>
    <name>ConfigList</name>
    <message>
        <source>%1 is no file; name another one</source>
        <translation>%1 ist keine Datei; wählen Sie eine andere</translation>
    </message>
    <message>
        <source>there is no file %1; check its name</source>
        <translation>es gibt keine Datei %1; prüfen Sie den Namen</translation>
    </message>
    <message>
        <source>%1 has %2, and no more than %3 are read</source>
        <translation>%1 hat %2; mehr als %3 werden nicht gelesen</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read (%2); check its permissions</source>
        <translation>%1 kann nicht gelesen werden (%2); prüfen Sie die Rechte</translation>
    </message>
</context>
<context>
    <name>PresetHistory</name>
    <message>
        <source>added &quot;%1&quot; (%2)</source>
        <translation>„%1“ (%2) hinzugefügt</translation>
    </message>
    <message>
        <source>deleted &quot;%1&quot; (%2)</source>
        <translation>„%1“ (%2) gelöscht</translation>
    </message>
    <message>
        <source>changed &quot;%1&quot; (%2)</source>
        <translation>„%1“ (%2) geändert</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%L1 weitere</translation>
    </message>
    <message>
        <source>there is nothing to undo</source>
        <translation>es gibt nichts rückgängig zu machen</translation>
    </message>
    <message>
        <source>what was done last (%1) can&apos;t be undone: another program has changed these presets since</source>
        <translation>das Letzte (%1) kann nicht rückgängig gemacht werden: Ein anderes Programm hat diese Voreinstellungen seitdem geändert</translation>
    </message>
</context>
</TS>
