<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Vex</name>
    <message>
        <source>Convert all to</source>
        <translation>Tout convertir en</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>recently</source>
        <translation>Récents</translation>
    </message>
    <message>
        <source>video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>device</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>socialVideo</source>
        <translation>Vidéo web</translation>
    </message>
    <message>
        <source>Format search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Aucune donnée</translation>
    </message>
    <message>
        <source>Keep Orignal</source>
        <translation>D’origine</translation>
    </message>
    <message>
        <source>Smart Fit</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>The selected format cannot be deleted because it is in use.</source>
        <translation>Le format choisi est utilisé et ne peut pas être supprimé.</translation>
    </message>
    <message>
        <source>The format you searched for was not found</source>
        <translation>Le format recherché est introuvable</translation>
    </message>
    <message>
        <source>Preference</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>custom</source>
        <translation>perso</translation>
    </message>
    <message>
        <source>custom preset</source>
        <translation>perso</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>High Quality</source>
        <translation>Haute qualité</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>Low Quality</source>
        <translation>Basse qualité</translation>
    </message>
    <message>
        <source>Middle Quality</source>
        <translation>Qualité moyenne</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>Codec</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>Images/s</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Définition</translation>
    </message>
    <message>
        <source>Bitrate</source>
        <translation>Débit</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Canaux</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Fréquence</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Créer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Converter</source>
        <translation>Conversion</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Édition</translation>
    </message>
    <message>
        <source>Add files</source>
        <translation>Ajouter des fichiers</translation>
    </message>
    <message>
        <source>Choose folder</source>
        <translation>Choisir un dossier</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Drop video or audio files here</source>
        <translation>Déposez ici des fichiers vidéo ou audio</translation>
    </message>
    <message>
        <source>Then choose a format and press Convert All</source>
        <translation>Choisissez ensuite un format et cliquez sur « Tout convertir »</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Convertir</translation>
    </message>
    <message>
        <source>Convert All</source>
        <translation>Tout convertir</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Stop All</source>
        <translation>Tout arrêter</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Retirer de la liste</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message>
        <source>Same folder as the source</source>
        <translation>Dossier du fichier source</translation>
    </message>
    <message>
        <source>Save to</source>
        <translation>Enregistrer dans</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Reading …</source>
        <translation>Lecture…</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>Converting …</source>
        <translation>Conversion…</translation>
    </message>
    <message>
        <source>Converted</source>
        <translation>Converti</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Arrêté</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>reste %1</translation>
    </message>
    <message>
        <source>The window can&apos;t be made</source>
        <translation>Impossible de créer la fenêtre</translation>
    </message>
    <message>
        <source>Same as source</source>
        <translation>Comme la source</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Voix</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Sans perte</translation>
    </message>
    <message>
        <source>CD Quality</source>
        <translation>Qualité CD</translation>
    </message>
    <message>
        <source>32 bit float</source>
        <translation>32 bits flottants</translation>
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
        <translation>Surround 5.1</translation>
    </message>
    <message>
        <source>Wideband</source>
        <translation>Large bande</translation>
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
        <translation>Clip portrait HD 1080P</translation>
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
        <translation>Portrait 4:5</translation>
    </message>
    <message>
        <source>Portrait 4K</source>
        <translation>Portrait 4K</translation>
    </message>
    <message>
        <source>Portrait HD 1080P</source>
        <translation>Portrait HD 1080P</translation>
    </message>
    <message>
        <source>Portrait HD 1200P</source>
        <translation>Portrait HD 1200P</translation>
    </message>
    <message>
        <source>Portrait HD 720P</source>
        <translation>Portrait HD 720P</translation>
    </message>
    <message>
        <source>Portrait SD 540P</source>
        <translation>Portrait SD 540P</translation>
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
        <translation>TV connectée 4K</translation>
    </message>
    <message>
        <source>Smart TV HD 1080P</source>
        <translation>TV connectée HD 1080P</translation>
    </message>
    <message>
        <source>Smart TV HD 720P</source>
        <translation>TV connectée HD 720P</translation>
    </message>
    <message>
        <source>Square HD 1080P</source>
        <translation>Carré HD 1080P</translation>
    </message>
    <message>
        <source>Square HD 720P</source>
        <translation>Carré HD 720P</translation>
    </message>
    <message>
        <source>Story HD 1080P</source>
        <translation>Story HD 1080P</translation>
    </message>
    <message>
        <source>TV Box 4K</source>
        <translation>Box TV 4K</translation>
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
        <translation>Fichiers vidéo et audio</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Tous les fichiers</translation>
    </message>
    <message>
        <source>There are no video or audio files in the folder %1; add the files themselves</source>
        <translation>Le dossier %1 ne contient aucun fichier vidéo ou audio ; ajoutez directement les fichiers</translation>
    </message>
    <message>
        <source>No file manager could be started to show the folder %1; open it by hand</source>
        <translation>Aucun gestionnaire de fichiers n’a pu être lancé pour afficher le dossier %1 ; ouvrez-le vous-même</translation>
    </message>
    <message>
        <source>VexConvert can&apos;t open its window</source>
        <translation>VexConvert ne peut pas ouvrir sa fenêtre</translation>
    </message>
    <message>
        <source>%1 is the earliest possible time</source>
        <translation>%1 est le premier instant possible</translation>
    </message>
    <message>
        <source>%1 is the latest possible time</source>
        <translation>%1 est le dernier instant possible</translation>
    </message>
    <message>
        <source>For both pages; each can have its own settings below its list</source>
        <translation>Pour les deux pages ; chacune peut avoir ses propres réglages sous sa liste</translation>
    </message>
    <message>
        <source>This folder isn&apos;t there; choose another one</source>
        <translation>Ce dossier n’existe pas ; choisissez-en un autre</translation>
    </message>
    <message>
        <source>A name has no &quot;/&quot;; choose the folder in &quot;Save to&quot;</source>
        <translation>Un nom ne contient pas de « / » ; choisissez le dossier dans « Enregistrer dans »</translation>
    </message>
    <message>
        <source>About VexConvert</source>
        <translation>À propos de VexConvert</translation>
    </message>
    <message>
        <source>Add a number</source>
        <translation>Ajouter un numéro</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Ajouter un dossier</translation>
    </message>
    <message>
        <source>As many as suit this machine</source>
        <translation>Autant que l’ordinateur le permet</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Comme le bureau</translation>
    </message>
    <message>
        <source>Ask</source>
        <translation>Demander</translation>
    </message>
    <message>
        <source>Conversions at once</source>
        <translation>Conversions simultanées</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Cut in the editor</source>
        <translation>Couper dans « Édition »</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>For example %1</source>
        <translation>Par exemple %1</translation>
    </message>
    <message>
        <source>Holidays</source>
        <translation>Vacances</translation>
    </message>
    <message>
        <source>If a name is in use</source>
        <translation>Si un nom est déjà pris</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Garder les deux</translation>
    </message>
    <message>
        <source>Language (from the next start)</source>
        <translation>Langue (au prochain démarrage)</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Make the subfolders of an added folder, too</source>
        <translation>Créer aussi les sous-dossiers d’un dossier ajouté</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Noms</translation>
    </message>
    <message>
        <source>Names in use</source>
        <translation>Noms déjà pris</translation>
    </message>
    <message>
        <source>Names of the results</source>
        <translation>Noms des résultats</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Qt is under the LGPL 3, ffmpeg under the LGPL or the GPL.</source>
        <translation>Qt est sous LGPL 3, ffmpeg sous LGPL ou GPL.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Replace the file</source>
        <translation>Remplacer le fichier</translation>
    </message>
    <message>
        <source>Show log</source>
        <translation>Afficher le journal</translation>
    </message>
    <message>
        <source>Estimate sizes from short samples</source>
        <translation>Estimer les tailles avec de courts extraits</translation>
    </message>
    <message>
        <source>Show no animations</source>
        <translation>Ne pas afficher d’animations</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Skip the file</source>
        <translation>Ignorer le fichier</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Thème</translation>
    </message>
    <message>
        <source>There is no field {%1}; use %2</source>
        <translation>Il n’y a pas de champ {%1} ; utilisez %2</translation>
    </message>
    <message>
        <source>These are replaced: %1</source>
        <translation>Sont remplacés : %1</translation>
    </message>
    <message>
        <source>These files already exist:</source>
        <translation>Ces fichiers existent déjà :</translation>
    </message>
    <message>
        <source>VexConvert is free software under the MIT licence.</source>
        <translation>VexConvert est un logiciel libre sous licence MIT.</translation>
    </message>
    <message>
        <source>Write a time such as 1:02:03.5</source>
        <translation>Écrivez un temps tel que 1:02:03.5</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 autres</translation>
    </message>
    <message>
        <source>ffmpeg hasn&apos;t run for this file yet</source>
        <translation>ffmpeg n’a pas encore traité ce fichier</translation>
    </message>
    <message>
        <source>was there already</source>
        <translation>existait déjà</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1 :</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>Tell me when all files are converted</source>
        <translation>M’avertir quand tous les fichiers sont convertis</translation>
    </message>
    <message>
        <source>%1 % smaller</source>
        <translation>%1 % moins volumineux</translation>
    </message>
    <message>
        <source>%1 % larger</source>
        <translation>%1 % plus volumineux</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>%1 is a picture; add video or audio files</source>
        <translation>%1 est une image ; ajoutez des fichiers vidéo ou audio</translation>
    </message>
    <message>
        <source>%1 is a playlist; add the files that it names instead</source>
        <translation>%1 est une liste de lecture ; ajoutez plutôt les fichiers qu’elle contient</translation>
    </message>
    <message>
        <source>%1 is not on this computer; download it first and add the file</source>
        <translation>%1 n’est pas sur cet ordinateur ; téléchargez-le d’abord, puis ajoutez le fichier</translation>
    </message>
    <message>
        <source>There is no file %1 any more; convert it again</source>
        <translation>Le fichier %1 n’existe plus ; convertissez-le à nouveau</translation>
    </message>
    <message>
        <source>No player could be started for %1; open it by hand</source>
        <translation>Aucun lecteur n’a pu être lancé pour %1 ; ouvrez-le à la main</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 fichiers</translation>
    </message>
    <message>
        <source>Already in the list: %1</source>
        <translation>Déjà dans la liste : %1</translation>
    </message>
    <message>
        <source>Add again</source>
        <translation>Ajouter à nouveau</translation>
    </message>
    <message>
        <source>Removed: %1</source>
        <translation>Retiré : %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Converted already: %1</source>
        <translation>Déjà converti : %1</translation>
    </message>
    <message>
        <source>Convert again</source>
        <translation>Convertir à nouveau</translation>
    </message>
    <message>
        <source>VexConvert was closed while it converted; Convert All goes on with what is left</source>
        <translation>VexConvert a été fermé pendant la conversion ; « Tout convertir » reprend ce qui reste</translation>
    </message>
    <message>
        <source>about %1</source>
        <translation>environ %1</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>au plus %1</translation>
    </message>
    <message>
        <source>Files converted: %1</source>
        <translation>Fichiers convertis : %1</translation>
    </message>
    <message>
        <source>failed: %1</source>
        <translation>en échec : %1</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>Interrompu</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>Trier par</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Choose a format …</source>
        <translation>Choisir un format…</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Follow “Convert all to”</source>
        <translation>Suivre « Tout convertir en »</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Ctrl+A</source>
        <translation>Ctrl+A</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Suppr</translation>
    </message>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%1 sur %2 sélectionnés</translation>
    </message>
    <message>
        <source>Files: %1</source>
        <translation>Fichiers : %1</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Clear converted</source>
        <translation>Retirer les convertis</translation>
    </message>
    <message>
        <source>Stop converting?</source>
        <translation>Arrêter la conversion ?</translation>
    </message>
    <message>
        <source>The list is kept: you can convert the rest the next time.</source>
        <translation>La liste est conservée : vous pourrez convertir le reste la prochaine fois.</translation>
    </message>
    <message>
        <source>Stop and close</source>
        <translation>Arrêter et fermer</translation>
    </message>
    <message>
        <source>Keep converting</source>
        <translation>Continuer la conversion</translation>
    </message>
    <message>
        <source>Use %1</source>
        <translation>Utiliser %1</translation>
    </message>
    <message>
        <source>Audio tracks</source>
        <translation>Pistes audio</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation>Sous-titres</translation>
    </message>
    <message>
        <source>No audio tracks or subtitles</source>
        <translation>Ni pistes audio ni sous-titres</translation>
    </message>
    <message>
        <source>Default track</source>
        <translation>Piste par défaut</translation>
    </message>
    <message>
        <source>Default track: %1</source>
        <translation>Piste par défaut : %1</translation>
    </message>
    <message>
        <source>Burn in</source>
        <translation>Incruster</translation>
    </message>
    <message>
        <source>Burn in: %1</source>
        <translation>Incruster : %1</translation>
    </message>
    <message>
        <source>Draws these subtitles onto the picture</source>
        <translation>Dessine ces sous-titres sur l’image</translation>
    </message>
    <message>
        <source>Show tracks</source>
        <translation>Afficher les pistes</translation>
    </message>
    <message>
        <source>Hide tracks</source>
        <translation>Masquer les pistes</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>not in .%1</source>
        <translation>absent de .%1</translation>
    </message>
    <message>
        <source>forced</source>
        <translation>forcés</translation>
    </message>
    <message>
        <source>%1 channels</source>
        <translation>%1 canaux</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Found by: %1</source>
        <translation>Trouvé par : %1</translation>
    </message>
    <message>
        <source>Can’t be used: %1</source>
        <translation>Inutilisable : %1</translation>
    </message>
    <message>
        <source>Remove from the favorites</source>
        <translation>Retirer des favoris</translation>
    </message>
    <message>
        <source>Add to the favorites</source>
        <translation>Ajouter aux favoris</translation>
    </message>
    <message>
        <source>More about %1</source>
        <translation>Plus sur %1</translation>
    </message>
    <message>
        <source>Find a preset</source>
        <translation>Chercher un préréglage</translation>
    </message>
    <message>
        <source>Find a preset (Ctrl+F)</source>
        <translation>Chercher un préréglage (Ctrl+F)</translation>
    </message>
    <message>
        <source>Import or export presets</source>
        <translation>Importer ou exporter des préréglages</translation>
    </message>
    <message>
        <source>Import presets …</source>
        <translation>Importer des préréglages…</translation>
    </message>
    <message>
        <source>Import presets</source>
        <translation>Importer des préréglages</translation>
    </message>
    <message>
        <source>Export presets</source>
        <translation>Exporter des préréglages</translation>
    </message>
    <message>
        <source>Export all my presets …</source>
        <translation>Exporter tous les miens…</translation>
    </message>
    <message>
        <source>For the selected files: %1</source>
        <translation>Pour les fichiers sélectionnés : %1</translation>
    </message>
    <message>
        <source>For all files</source>
        <translation>Pour tous les fichiers</translation>
    </message>
    <message>
        <source>Presets: %1</source>
        <translation>Préréglages : %1</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Note …</source>
        <translation>Note…</translation>
    </message>
    <message>
        <source>Use this preset</source>
        <translation>Utiliser ce préréglage</translation>
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
        <translation>Alt+Haut</translation>
    </message>
    <message>
        <source>Alt+Down</source>
        <translation>Alt+Bas</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>What has been changed …</source>
        <translation>Ce qui a été modifié…</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Default on the command line for</source>
        <translation>Par défaut en ligne de commande pour</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Vidéos</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>Fichiers audio</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Export …</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtres</translation>
    </message>
    <message>
        <source>My presets</source>
        <translation>Les miens</translation>
    </message>
    <message>
        <source>Try 10 seconds</source>
        <translation>Essayer 10 secondes</translation>
    </message>
    <message>
        <source>Changes in “%1”</source>
        <translation>Modifications de « %1 »</translation>
    </message>
    <message>
        <source>It isn’t known what this preset was made from.</source>
        <translation>On ne sait pas à partir de quoi ce préréglage a été créé.</translation>
    </message>
    <message>
        <source>None: all values are those of %1.</source>
        <translation>Aucune : toutes les valeurs sont celles de %1.</translation>
    </message>
    <message>
        <source>It was made from %1, with these changes:</source>
        <translation>Il a été créé à partir de %1, avec ces modifications :</translation>
    </message>
    <message>
        <source>Take back</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Take all back</source>
        <translation>Tout annuler</translation>
    </message>
    <message>
        <source>new</source>
        <translation>nouveau</translation>
    </message>
    <message>
        <source>already there</source>
        <translation>déjà présent</translation>
    </message>
    <message>
        <source>another one is there</source>
        <translation>un autre existe</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>refusé</translation>
    </message>
    <message>
        <source>If you have another one of this title and format</source>
        <translation>S’il en existe un autre de ce titre et de ce format</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Trying 10 seconds of %1 …</source>
        <translation>Essai de 10 secondes de %1…</translation>
    </message>
    <message>
        <source>All of %1 would be about %2.</source>
        <translation>%1 ferait en entier environ %2.</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Relire</translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (copie)</translation>
    </message>
    <message>
        <source>a preset that is no longer there</source>
        <translation>un préréglage qui n’existe plus</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Annulé : %1</translation>
    </message>
    <message>
        <source>%1 presets</source>
        <translation>%1 préréglages</translation>
    </message>
    <message>
        <source>Presets changed: %1</source>
        <translation>Préréglages modifiés : %1</translation>
    </message>
    <message>
        <source>Changed: %1</source>
        <translation>Modifié : %1</translation>
    </message>
    <message>
        <source>Deleted: %1</source>
        <translation>Supprimé : %1</translation>
    </message>
    <message>
        <source>The temporary folder can’t be written (%1); check the disk</source>
        <translation>Impossible d’écrire dans le dossier temporaire (%1) ; vérifiez le disque</translation>
    </message>
    <message>
        <source>good for “%1”</source>
        <translation>bon pour « %1 »</translation>
    </message>
    <message>
        <source>Type a device, a site, a codec, a size or a purpose, such as “iphone 1080” or “small”.</source>
        <translation>Tapez un appareil, un site, un codec, une taille ou un usage, comme « iphone 1080 » ou « petit ».</translation>
    </message>
    <message>
        <source>No preset has all of this; leave out a word or a filter.</source>
        <translation>Aucun préréglage n’a tout cela ; retirez un mot ou un filtre.</translation>
    </message>
    <message>
        <source>No preset is known for “%1”.</source>
        <translation>Aucun préréglage connu pour « %1 ».</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favoris</translation>
    </message>
    <message>
        <source>Recently used</source>
        <translation>Utilisés récemment</translation>
    </message>
    <message>
        <source>mono</source>
        <translation>mono</translation>
    </message>
    <message>
        <source>stereo</source>
        <translation>stéréo</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatique</translation>
    </message>
    <message>
        <source>You have no presets of your own yet.</source>
        <translation>Vous n’avez pas encore de préréglages.</translation>
    </message>
    <message>
        <source>Exported: %1</source>
        <translation>Exporté : %1</translation>
    </message>
    <message>
        <source>%1 can’t be written (%2); choose another folder</source>
        <translation>Impossible d’écrire %1 (%2) ; choisissez un autre dossier</translation>
    </message>
    <message>
        <source>Presets imported: %1</source>
        <translation>Préréglages importés : %1</translation>
    </message>
    <message>
        <source>Files of presets</source>
        <translation>Fichiers de préréglages</translation>
    </message>
    <message>
        <source>approximated</source>
        <translation>approché</translation>
    </message>
    <message>
        <source>lost</source>
        <translation>perdu</translation>
    </message>
    <message>
        <source>No preset was imported.</source>
        <translation>Aucun préréglage n’a été importé.</translation>
    </message>
    <message>
        <source>no file yet</source>
        <translation>pas encore de fichier</translation>
    </message>
</context>
<context>
    <name>OutputStreams</name>
    <message>
        <source>has no video; choose an audio preset</source>
        <translation>ne contient pas de vidéo ; choisissez un format audio</translation>
    </message>
    <message>
        <source>has no audio; choose a video preset</source>
        <translation>ne contient pas de son ; choisissez un format vidéo</translation>
    </message>
    <message>
        <source>a .%1 file can&apos;t hold video; choose an audio preset</source>
        <translation>un fichier .%1 ne peut pas contenir de vidéo ; choisissez un format audio</translation>
    </message>
    <message>
        <source>is a single picture and makes no film; on the command line, --duration SECONDS shows it for so long</source>
        <translation>est une seule image et ne fait pas un film ; en ligne de commande, --duration SECONDS la montre aussi longtemps</translation>
    </message>
    <message>
        <source>has %1 audio tracks, so no number %2; choose another one</source>
        <translation>contient %1 pistes audio, donc pas de numéro %2 ; choisissez-en une autre</translation>
    </message>
    <message>
        <source>none of its audio tracks is kept; keep one</source>
        <translation>aucune de ses pistes audio n’est gardée ; gardez-en une</translation>
    </message>
</context>
<context>
    <name>EncoderChoice</name>
    <message>
        <source>needs the encoder %1 for %2, which this ffmpeg lacks; choose a preset with another encoder or install an ffmpeg that has it</source>
        <translation>a besoin de l’encodeur %1 pour %2, absent de ce ffmpeg ; choisissez un format avec un autre encodeur ou installez un ffmpeg qui en dispose</translation>
    </message>
    <message>
        <source> or </source>
        <translation> ou </translation>
    </message>
</context>
<context>
    <name>RateControl</name>
    <message>
        <source>says no length, so that no bitrate gives it the asked size; choose a bitrate instead</source>
        <translation>n’indique pas de durée, si bien qu’aucun débit ne donne la taille voulue ; choisissez plutôt un débit</translation>
    </message>
    <message>
        <source>is too long for the asked size; choose a larger size or less audio</source>
        <translation>est trop long pour la taille voulue ; choisissez une taille plus grande ou moins de son</translation>
    </message>
</context>
<context>
    <name>EncoderList</name>
    <message>
        <source>%1 doesn&apos;t list its encoders (%2); check that &quot;%1 -encoders&quot; works, or install another ffmpeg</source>
        <translation>%1 n’indique pas ses encodeurs (%2) ; vérifiez que « %1 -encoders » les affiche, ou installez un autre ffmpeg</translation>
    </message>
</context>
<context>
    <name>Conversion</name>
    <message>
        <source>the disk with %1 is full; free some space or choose another folder</source>
        <translation>le disque contenant %1 est plein ; libérez de l’espace ou choisissez un autre dossier</translation>
    </message>
    <message>
        <source>ffmpeg couldn&apos;t convert it (%1); check the file or try another preset</source>
        <translation>ffmpeg n’a pas pu convertir ce fichier (%1) ; vérifiez le fichier ou essayez un autre format</translation>
    </message>
    <message>
        <source>ffmpeg wrote a file that can&apos;t be played; try another preset</source>
        <translation>ffmpeg a écrit un fichier illisible ; essayez un autre format</translation>
    </message>
    <message>
        <source>holds %1 of %2 s: the source ends early or is damaged</source>
        <translation>contient %1 s sur %2 : la source se termine trop tôt ou est endommagée</translation>
    </message>
    <message>
        <source>its video is HDR, and this ffmpeg can&apos;t map that to ordinary colours; install an ffmpeg with zscale and tonemap</source>
        <translation>la vidéo est en HDR et cet ffmpeg ne peut pas la ramener à des couleurs ordinaires ; installez un ffmpeg avec zscale et tonemap</translation>
    </message>
    <message>
        <source>the encoder refuses these settings</source>
        <translation>l’encodeur refuse ces réglages</translation>
    </message>
    <message>
        <source>this kind of file can&apos;t hold one of the streams</source>
        <translation>ce type de fichier ne peut pas contenir une des pistes</translation>
    </message>
    <message>
        <source>the source doesn&apos;t say when its frames are shown</source>
        <translation>la source ne dit pas quand ses images sont montrées</translation>
    </message>
</context>
<context>
    <name>MediaInput</name>
    <message>
        <source>is a playlist; choose the files that it lists</source>
        <translation>est une liste de lecture ; choisissez les fichiers qu’elle contient</translation>
    </message>
    <message>
        <source>stands for an image sequence; rename it and its folders without any of % * ? [ ] { }</source>
        <translation>désigne une séquence d’images ; renommez le fichier et ses dossiers sans % * ? [ ] { }</translation>
    </message>
    <message>
        <source>is of a kind that isn&apos;t converted (%1); choose a video or audio file</source>
        <translation>est d’un type qui n’est pas converti (%1) ; choisissez un fichier vidéo ou audio</translation>
    </message>
</context>
<context>
    <name>MediaProbe</name>
    <message>
        <source>no such file; check its name</source>
        <translation>ce fichier n’existe pas ; vérifiez son nom</translation>
    </message>
    <message>
        <source>this is a folder; name the files in it</source>
        <translation>c’est un dossier ; choisissez les fichiers qu’il contient</translation>
    </message>
    <message>
        <source>cannot be read as media (%1); check that it is a complete video or audio file</source>
        <translation>illisible comme vidéo ou audio (%1) ; vérifiez que le fichier est complet</translation>
    </message>
    <message>
        <source>holds neither video nor audio; choose a video or audio file</source>
        <translation>ne contient ni vidéo ni audio ; choisissez un fichier vidéo ou audio</translation>
    </message>
    <message>
        <source>takes too long to read; check the disk or network that it is on</source>
        <translation>est trop long à lire ; vérifiez le disque ou le réseau où il se trouve</translation>
    </message>
    <message>
        <source>describes itself without end; check that it is a complete video or audio file</source>
        <translation>contient une description sans fin ; vérifiez que c’est un fichier vidéo ou audio complet</translation>
    </message>
</context>
<context>
    <name>OutputSettings</name>
    <message>
        <source>files of the kind &quot;.%1&quot; can&apos;t be written; choose another preset</source>
        <translation>les fichiers de type « .%1 » ne peuvent pas être écrits ; choisissez un autre format</translation>
    </message>
    <message>
        <source>no encoder has a name like &quot;%1&quot;; choose another preset</source>
        <translation>aucun encodeur ne s’appelle « %1 » ; choisissez un autre format</translation>
    </message>
    <message>
        <source>the preset&apos;s %1 is %2; it must be 0 or %3; choose another preset</source>
        <translation>%1 du format est %2 ; il faut 0 ou %3 ; choisissez un autre format</translation>
    </message>
    <message>
        <source>not a valid number</source>
        <translation>un nombre non valide</translation>
    </message>
    <message>
        <source>the part to keep must begin at 0 or later and end after that; choose another part</source>
        <translation>l’extrait doit commencer à 0 ou plus tard et finir après ; choisissez un autre extrait</translation>
    </message>
</context>
<context>
    <name>PendingFile</name>
    <message>
        <source>the folder %1 doesn&apos;t exist; make it or choose another one</source>
        <translation>le dossier %1 n’existe pas ; créez-le ou choisissez-en un autre</translation>
    </message>
    <message>
        <source>can&apos;t write into the folder %1 (%2); choose another one</source>
        <translation>impossible d’écrire dans le dossier %1 (%2) ; choisissez-en un autre</translation>
    </message>
    <message>
        <source>the result couldn&apos;t get its name in %1 (%2); choose another folder</source>
        <translation>impossible de nommer le résultat dans %1 (%2) ; choisissez un autre dossier</translation>
    </message>
</context>
<context>
    <name>PresetStore</name>
    <message>
        <source>can&apos;t write into the configuration folder %1 (%2); check its disk and its permissions</source>
        <translation>impossible d’écrire dans le dossier de configuration %1 (%2) ; vérifiez le disque et les droits</translation>
    </message>
    <message>
        <source>can&apos;t write %1, which is as before; check its disk and its permissions</source>
        <translation>impossible d’écrire %1, qui est resté inchangé ; vérifiez le disque et les droits</translation>
    </message>
</context>
<context>
    <name>Tool</name>
    <message>
        <source>%1 is not on the PATH; install ffmpeg (Debian: apt-get install ffmpeg) and try again</source>
        <translation>%1 n’est pas dans le PATH ; installez ffmpeg (Debian : apt-get install ffmpeg) et réessayez</translation>
    </message>
    <message>
        <source>%1 couldn&apos;t be started (%2); close other programs or raise your limits on open files and processes (ulimit -n, ulimit -u), and try again</source>
        <translation>%1 n’a pas pu démarrer (%2) ; fermez d’autres programmes ou relevez les limites de fichiers ouverts et de processus (ulimit -n, ulimit -u), puis réessayez</translation>
    </message>
</context>
<context>
    <name>ToolRun</name>
    <message>
        <source>%1 stopped without saying why</source>
        <translation>%1 s’est arrêté sans dire pourquoi</translation>
    </message>
    <message>
        <source>%1 took too long</source>
        <translation>%1 a pris trop de temps</translation>
    </message>
    <message>
        <source>%1 printed too much</source>
        <translation>%1 a produit trop de texte</translation>
    </message>
</context>
<context>
    <name>FolderLock</name>
    <message>
        <source>another program</source>
        <translation>un autre programme</translation>
    </message>
    <message>
        <source>%1 (process %2 on %3)</source>
        <translation>%1 (processus %2 sur %3)</translation>
    </message>
    <message>
        <source>can&apos;t write into the configuration folder %1 (%2); name another one</source>
        <translation>impossible d’écrire dans le dossier de configuration %1 (%2) ; indiquez-en un autre</translation>
    </message>
    <message>
        <source>%1 is using the presets in %2; close it, or try again when it is done</source>
        <translation>%1 utilise les formats de %2 ; fermez-le ou réessayez quand il aura fini</translation>
    </message>
    <message>
        <source>%1 is no plain file; remove it</source>
        <translation>%1 n’est pas un fichier ordinaire ; supprimez-le</translation>
    </message>
    <message>
        <source>waiting for %1, which is using the presets in %2</source>
        <translation>en attente de %1, qui utilise les formats de %2</translation>
    </message>
</context>
<context>
    <name>UserFile</name>
    <message>
        <source>%1 is no file; move it away</source>
        <translation>%1 n’est pas un fichier ; déplacez-le</translation>
    </message>
    <message>
        <source>%1 has %2, and no more than %3 are read; move it away to start anew</source>
        <translation>%1 fait %2 et on lit au plus %3 ; déplacez-le pour repartir de zéro</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read (%2); check its permissions</source>
        <translation>impossible de lire %1 (%2) ; vérifiez les droits</translation>
    </message>
    <message>
        <source>%1 is missing; put its last good copy, %2, in its place</source>
        <translation>%1 manque ; remettez à sa place sa dernière bonne copie, %2</translation>
    </message>
    <message>
        <source>%1 is damaged; put its last good copy, %2, in its place</source>
        <translation>%1 est endommagé ; remettez à sa place sa dernière bonne copie, %2</translation>
    </message>
    <message>
        <source>%1 is empty and there is no good copy of it; remove it to start anew</source>
        <translation>%1 est vide et il n’en existe pas de bonne copie ; supprimez-le pour repartir de zéro</translation>
    </message>
    <message>
        <source>%1 is damaged and there is no good copy of it; fix it, or move it away to start anew</source>
        <translation>%1 est endommagé et il n’en existe pas de bonne copie ; réparez-le ou déplacez-le pour repartir de zéro</translation>
    </message>
    <message>
        <source>%1 was empty and there is no good copy of it</source>
        <translation>%1 était vide et il n’en existe pas de bonne copie</translation>
    </message>
    <message>
        <source>%1 was damaged and there is no good copy of it; it is kept as %2</source>
        <translation>%1 était endommagé et il n’en existe pas de bonne copie ; il est gardé sous %2</translation>
    </message>
    <message>
        <source>%1 was damaged; its last good copy, %2, is in its place, and the damaged file is kept as %3</source>
        <translation>%1 était endommagé ; sa dernière bonne copie, %2, l’a remplacé et le fichier endommagé est gardé sous %3</translation>
    </message>
    <message>
        <source>%1 was missing; its last good copy, %2, is in its place</source>
        <translation>%1 manquait ; sa dernière bonne copie, %2, l’a remplacé</translation>
    </message>
    <message>
        <source>%1 was missing and its copy, %2, is damaged</source>
        <translation>%1 manquait et sa copie, %2, est endommagée</translation>
    </message>
    <message>
        <source>%1 was empty; its last good copy, %2, is in its place</source>
        <translation>%1 était vide ; sa dernière bonne copie, %2, l’a remplacé</translation>
    </message>
    <message>
        <source>can&apos;t write %1 (%2), which is as before; check its disk and its permissions</source>
        <translation>impossible d’écrire %1 (%2), qui est resté inchangé ; vérifiez le disque et les droits</translation>
    </message>
    <message>
        <source>can&apos;t keep the unusable presets of %1 in %2 (%3); check its disk and its permissions</source>
        <translation>impossible de garder dans %2 les formats inutilisables de %1 (%3) ; vérifiez le disque et les droits</translation>
    </message>
    <message>
        <source>%1 holds presets without settings (&quot;outPutNode&quot;), which can&apos;t be used; they are kept in %2</source>
        <translation>%1 contient des formats sans réglages (&quot;outPutNode&quot;), inutilisables ; ils sont gardés dans %2</translation>
    </message>
</context>
<context>
    <name>Losses</name>
    <message>
        <source>left out: %1</source>
        <translation>non repris : %1</translation>
    </message>
    <message>
        <source>%1 of %2 audio tracks (.%3 holds %4, .%5 holds all)</source>
        <translation>%1 piste(s) audio sur %2 (.%3 en contient %4, .%5 toutes)</translation>
    </message>
    <message>
        <source>subtitle tracks: %1 (%2; .%3 doesn&apos;t hold them, .%4 does)</source>
        <translation>%1 piste(s) de sous-titres (%2 ; .%3 ne les accepte pas, .%4 si)</translation>
    </message>
    <message>
        <source>subtitle tracks: %1 (%2; no format holds them)</source>
        <translation>%1 piste(s) de sous-titres (%2 ; aucun format ne les accepte)</translation>
    </message>
    <message>
        <source>subtitle tracks: %1 (%2; they can&apos;t be written into this .%3)</source>
        <translation>%1 piste(s) de sous-titres (%2 ; impossibles à écrire dans ce .%3)</translation>
    </message>
    <message>
        <source>more video tracks: %1 (a result has one)</source>
        <translation>%1 autre(s) piste(s) vidéo (un résultat en a une)</translation>
    </message>
    <message>
        <source>attachments: %1 (.%2 doesn&apos;t hold them, .mkv does)</source>
        <translation>%1 pièce(s) jointe(s) (.%2 ne les accepte pas, .mkv si)</translation>
    </message>
    <message>
        <source>chapters: %1 (.%2 doesn&apos;t hold them, .%3 does)</source>
        <translation>%1 chapitre(s) (.%2 ne les accepte pas, .%3 si)</translation>
    </message>
    <message>
        <source>the cover (.%1 doesn&apos;t hold it, .%2 does)</source>
        <translation>la pochette (.%1 ne l’accepte pas, .%2 si)</translation>
    </message>
</context>
<context>
    <name>SubtitlePlan</name>
    <message>
        <source>has %1 subtitle tracks, so no number %2; choose another one</source>
        <translation>contient %1 pistes de sous-titres, donc pas de numéro %2 ; choisissez-en une autre</translation>
    </message>
</context>
<context>
    <name>KeptQueue</name>
    <message>
        <source>it is of a newer version of the program</source>
        <translation>elle vient d’une version plus récente du programme</translation>
    </message>
    <message>
        <source>it holds no list of files</source>
        <translation>elle ne contient aucune liste de fichiers</translation>
    </message>
    <message>
        <source>The list of files of the last time can&apos;t be read (%1); it is now %2, and the window starts empty</source>
        <translation>La liste de fichiers de la dernière fois est illisible (%1) ; elle s’appelle maintenant %2 et la fenêtre est vide au départ</translation>
    </message>
    <message>
        <source>The list of files of the last time can&apos;t be read (%1); remove %2 to let a new one be kept</source>
        <translation>La liste de fichiers de la dernière fois est illisible (%1) ; supprimez %2 pour qu’une nouvelle puisse être conservée</translation>
    </message>
    <message>
        <source>The list of files can&apos;t be kept in %1 (%2); free some space or check the folder&apos;s permissions</source>
        <translation>La liste de fichiers ne peut pas être conservée dans %1 (%2) ; libérez de la place ou vérifiez les droits du dossier</translation>
    </message>
</context>
<context>
    <name>CodecWords</name>
    <message>
        <source>more than 8 bits only where the source has them</source>
        <translation>plus de 8 bits seulement si la source les a</translation>
    </message>
    <message>
        <source>%1 is written without the graphics card</source>
        <translation>%1 est écrit sans la carte graphique</translation>
    </message>
    <message>
        <source>audio of another codec is encoded</source>
        <translation>l’audio d’un autre codec est réencodé</translation>
    </message>
    <message>
        <source>AAC without its high-efficiency extension</source>
        <translation>AAC sans son extension haute efficacité</translation>
    </message>
    <message>
        <source>the encoder&apos;s usual speed</source>
        <translation>la vitesse habituelle de l’encodeur</translation>
    </message>
    <message>
        <source>%1 isn&apos;t tuned so</source>
        <translation>%1 n’est pas réglé ainsi</translation>
    </message>
    <message>
        <source>the encoder chooses the profile</source>
        <translation>l’encodeur choisit le profil</translation>
    </message>
    <message>
        <source>the encoder chooses the level</source>
        <translation>l’encodeur choisit le niveau</translation>
    </message>
    <message>
        <source>the encoder chooses the key frames</source>
        <translation>l’encodeur choisit les images clés</translation>
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
        <translation>le même nombre pour un autre encodeur</translation>
    </message>
    <message>
        <source>the average bitrate is reached in one pass</source>
        <translation>le débit moyen est atteint en une seule passe</translation>
    </message>
    <message>
        <source>a variable rate stays variable where the format has it</source>
        <translation>une fréquence variable le reste si le format le permet</translation>
    </message>
    <message>
        <source>the rate is a limit; slower sources keep theirs</source>
        <translation>la fréquence est une limite ; les sources plus lentes gardent la leur</translation>
    </message>
    <message>
        <source>each source&apos;s track is written once</source>
        <translation>chaque piste de la source est écrite une fois</translation>
    </message>
    <message>
        <source>all tracks; &quot;convert --audio&quot; chooses</source>
        <translation>toutes les pistes ; on les choisit dans la ligne du fichier</translation>
    </message>
    <message>
        <source>the source&apos;s codec</source>
        <translation>le codec de la source</translation>
    </message>
    <message>
        <source>the encoder&apos;s good quality</source>
        <translation>la bonne qualité de l’encodeur</translation>
    </message>
    <message>
        <source>plain stereo</source>
        <translation>stéréo simple</translation>
    </message>
    <message>
        <source>the source&apos;s channels</source>
        <translation>les canaux de la source</translation>
    </message>
    <message>
        <source>the loudness stays as it is</source>
        <translation>le volume reste tel quel</translation>
    </message>
    <message>
        <source>a folder</source>
        <translation>un dossier</translation>
    </message>
    <message>
        <source>folders are nested too deeply</source>
        <translation>les dossiers sont imbriqués trop profondément</translation>
    </message>
    <message>
        <source>has no &quot;VideoEncoder&quot; or no &quot;FileFormat&quot;</source>
        <translation>n’a pas de « VideoEncoder » ou de « FileFormat »</translation>
    </message>
    <message>
        <source>is one of more than %1</source>
        <translation>en est un parmi plus de %L1</translation>
    </message>
    <message>
        <source>the encoder&apos;s own value</source>
        <translation>la valeur propre de l’encodeur</translation>
    </message>
</context>
<context>
    <name>HandBrakeLeftovers</name>
    <message>
        <source>the source&apos;s delays are kept</source>
        <translation>les décalages de la source sont conservés</translation>
    </message>
    <message>
        <source>parameters stand only at the file&apos;s start</source>
        <translation>les paramètres ne sont qu’au début du fichier</translation>
    </message>
    <message>
        <source>the source&apos;s tags are kept</source>
        <translation>les métadonnées de la source sont conservées</translation>
    </message>
    <message>
        <source>the file isn&apos;t marked for the first iPods</source>
        <translation>le fichier n’est pas marqué pour les premiers iPod</translation>
    </message>
    <message>
        <source>small pictures stay small</source>
        <translation>les petites images restent petites</translation>
    </message>
    <message>
        <source>colours aren&apos;t smoothed</source>
        <translation>les couleurs ne sont pas lissées</translation>
    </message>
    <message>
        <source>the source&apos;s colours are kept</source>
        <translation>les couleurs de la source sont conservées</translation>
    </message>
    <message>
        <source>blocks aren&apos;t smoothed</source>
        <translation>les blocs ne sont pas lissés</translation>
    </message>
    <message>
        <source>sources that say they are interlaced are deinterlaced</source>
        <translation>les sources déclarées entrelacées sont désentrelacées</translation>
    </message>
    <message>
        <source>noise isn&apos;t removed</source>
        <translation>le bruit n’est pas retiré</translation>
    </message>
    <message>
        <source>telecine isn&apos;t undone</source>
        <translation>le télécinéma n’est pas annulé</translation>
    </message>
    <message>
        <source>the source&apos;s pixel shape is used</source>
        <translation>la forme des pixels de la source est utilisée</translation>
    </message>
    <message>
        <source>the picture isn&apos;t distorted</source>
        <translation>l’image n’est pas déformée</translation>
    </message>
    <message>
        <source>square pixels in a picture of the same shape</source>
        <translation>des pixels carrés dans une image de même forme</translation>
    </message>
    <message>
        <source>no borders are added</source>
        <translation>aucune bordure n’est ajoutée</translation>
    </message>
    <message>
        <source>the picture isn&apos;t turned</source>
        <translation>l’image n’est pas tournée</translation>
    </message>
    <message>
        <source>the picture isn&apos;t sharpened</source>
        <translation>l’image n’est pas accentuée</translation>
    </message>
    <message>
        <source>the height follows from the picture&apos;s shape</source>
        <translation>la hauteur découle de la forme de l’image</translation>
    </message>
    <message>
        <source>the width follows from the picture&apos;s shape</source>
        <translation>la largeur découle de la forme de l’image</translation>
    </message>
    <message>
        <source>closed captions aren&apos;t taken</source>
        <translation>les sous-titres codés ne sont pas repris</translation>
    </message>
    <message>
        <source>&quot;convert --burn-subtitles&quot; chooses a track</source>
        <translation>la piste à incruster se choisit dans la ligne du fichier</translation>
    </message>
    <message>
        <source>&quot;convert --subtitles&quot; chooses tracks</source>
        <translation>les pistes se choisissent dans la ligne du fichier</translation>
    </message>
    <message>
        <source>all that the format holds; &quot;convert --subtitles&quot; chooses</source>
        <translation>tous ceux que le format admet ; on les choisit dans la ligne du fichier</translation>
    </message>
    <message>
        <source>the picture stays in colour</source>
        <translation>l’image reste en couleur</translation>
    </message>
    <message>
        <source>the encoder&apos;s own values</source>
        <translation>les valeurs propres de l’encodeur</translation>
    </message>
    <message>
        <source>nothing is cut off</source>
        <translation>rien n’est rogné</translation>
    </message>
    <message>
        <source>black borders stay</source>
        <translation>les bordures noires restent</translation>
    </message>
    <message>
        <source>isn&apos;t known</source>
        <translation>est inconnu</translation>
    </message>
</context>
<context>
    <name>Melt</name>
    <message>
        <source>isn&apos;t used</source>
        <translation>n’est pas utilisé</translation>
    </message>
    <message>
        <source>as many bits and colours as the codec keeps</source>
        <translation>autant de bits et de couleurs que le codec en garde</translation>
    </message>
    <message>
        <source>isn&apos;t used; the converter has a way of its own</source>
        <translation>n’est pas utilisé ; le convertisseur a sa propre méthode</translation>
    </message>
    <message>
        <source>the encoder&apos;s good quality</source>
        <translation>la bonne qualité de l’encodeur</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>ligne %L1</translation>
    </message>
</context>
<context>
    <name>PresetFile</name>
    <message>
        <source>&quot;%1&quot; is not a known key</source>
        <translation>« %1 » n’est pas une clé connue</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be an object</source>
        <translation>« %1 » doit être un objet</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a text</source>
        <translation>« %1 » doit être un texte</translation>
    </message>
    <message>
        <source>&quot;settings.%1&quot; is not a known key</source>
        <translation>« settings.%1 » n’est pas une clé connue</translation>
    </message>
    <message>
        <source>&quot;settings.%1&quot; must be a text</source>
        <translation>« settings.%1 » doit être un texte</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>doit être un objet</translation>
    </message>
    <message>
        <source>is one of more than %1</source>
        <translation>en est un parmi plus de %L1</translation>
    </message>
    <message>
        <source>%1: %2 at byte %3</source>
        <translation>%1 : %2 à l’octet %L3</translation>
    </message>
    <message>
        <source>%1 has neither a list &quot;presets&quot; nor a list &quot;PresetList&quot;; it is no file of presets</source>
        <translation>%1 n’a ni liste « presets » ni liste « PresetList » ; ce n’est pas un fichier de préréglages</translation>
    </message>
    <message>
        <source>%1 has the version %2, and only version %3 can be read; export it again with this version of vexconvert</source>
        <translation>%1 est de version %2, et seule la version %3 peut être lue ; exportez-le à nouveau avec cette version de vexconvert</translation>
    </message>
    <message>
        <source>%1 is no file of presets of vexconvert, HandBrake, Kdenlive or Shotcut</source>
        <translation>%1 n’est pas un fichier de préréglages de vexconvert, HandBrake, Kdenlive ou Shotcut</translation>
    </message>
</context>
<context>
    <name>PresetImport</name>
    <message>
        <source>its title must have 1 to %1 characters that can be seen</source>
        <translation>le titre doit avoir de 1 à %L1 caractères visibles</translation>
    </message>
    <message>
        <source>its note is longer than %1 characters</source>
        <translation>la note dépasse %L1 caractères</translation>
    </message>
    <message>
        <source>&quot;%1&quot; isn&apos;t possible for %2</source>
        <translation>« %1 » n’est pas possible pour %2</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written into .%2 files</source>
        <translation>%1 ne peut pas être écrit dans des fichiers .%2</translation>
    </message>
    <message>
        <source>no format here writes video into .%1 files</source>
        <translation>aucun format n’écrit ici de vidéo dans des fichiers .%1</translation>
    </message>
    <message>
        <source>no format here writes audio alone into .%1 files</source>
        <translation>aucun format n’écrit ici l’audio seul dans des fichiers .%1</translation>
    </message>
    <message>
        <source>its base %1 isn&apos;t in this catalogue; %2 stands in for it</source>
        <translation>sa base %1 n’est pas dans ce catalogue ; %2 la remplace</translation>
    </message>
    <message>
        <source>nothing is imported, as %1 of %2 presets are refused; leave them out with --skip-refused</source>
        <translation>rien n’est importé, car %1 préréglages sur %2 sont refusés ; omettez-les avec --skip-refused</translation>
    </message>
    <message>
        <source>preset %1 isn&apos;t yours; only your own can be exported</source>
        <translation>le préréglage %1 n’est pas le vôtre ; seuls les vôtres peuvent être exportés</translation>
    </message>
</context>
<context>
    <name>ConfigList</name>
    <message>
        <source>%1 is no file; name another one</source>
        <translation>%1 n’est pas un fichier ; choisissez-en un autre</translation>
    </message>
    <message>
        <source>there is no file %1; check its name</source>
        <translation>il n’y a pas de fichier %1 ; vérifiez son nom</translation>
    </message>
    <message>
        <source>%1 has %2, and no more than %3 are read</source>
        <translation>%1 fait %2, et pas plus de %3 sont lus</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read (%2); check its permissions</source>
        <translation>%1 ne peut pas être lu (%2) ; vérifiez ses droits</translation>
    </message>
</context>
<context>
    <name>PresetHistory</name>
    <message>
        <source>added &quot;%1&quot; (%2)</source>
        <translation>« %1 » (%2) ajouté</translation>
    </message>
    <message>
        <source>deleted &quot;%1&quot; (%2)</source>
        <translation>« %1 » (%2) supprimé</translation>
    </message>
    <message>
        <source>changed &quot;%1&quot; (%2)</source>
        <translation>« %1 » (%2) modifié</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%L1 de plus</translation>
    </message>
    <message>
        <source>there is nothing to undo</source>
        <translation>il n’y a rien à annuler</translation>
    </message>
    <message>
        <source>what was done last (%1) can&apos;t be undone: another program has changed these presets since</source>
        <translation>la dernière action (%1) ne peut pas être annulée : un autre programme a modifié ces préréglages depuis</translation>
    </message>
</context>
</TS>
