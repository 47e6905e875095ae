<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Vex</name>
    <message>
        <source>Convert all to</source>
        <translation>Convert all to</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>recently</source>
        <translation>Recent</translation>
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
        <translation>Device</translation>
    </message>
    <message>
        <source>socialVideo</source>
        <translation>Web video</translation>
    </message>
    <message>
        <source>Format search</source>
        <translation>Find format</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>No data</translation>
    </message>
    <message>
        <source>Keep Orignal</source>
        <translation>Keep original</translation>
    </message>
    <message>
        <source>Smart Fit</source>
        <translation>Smart fit</translation>
    </message>
    <message>
        <source>The selected format cannot be deleted because it is in use.</source>
        <translation>The selected format cannot be deleted because it is in use.</translation>
    </message>
    <message>
        <source>The format you searched for was not found</source>
        <translation>The format you searched for was not found</translation>
    </message>
    <message>
        <source>Preference</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>custom</source>
        <translation>custom</translation>
    </message>
    <message>
        <source>custom preset</source>
        <translation>custom</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Quality</translation>
    </message>
    <message>
        <source>High Quality</source>
        <translation>High quality</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Default</translation>
    </message>
    <message>
        <source>Low Quality</source>
        <translation>Low quality</translation>
    </message>
    <message>
        <source>Middle Quality</source>
        <translation>Medium quality</translation>
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
        <translation>Frame rate</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolution</translation>
    </message>
    <message>
        <source>Bitrate</source>
        <translation>Bitrate</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>Channels</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>Sample rate</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Create</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>Converter</source>
        <translation>Converter</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Add files</source>
        <translation>Add files</translation>
    </message>
    <message>
        <source>Choose folder</source>
        <translation>Choose folder</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>Drop video or audio files here</source>
        <translation>Drop video or audio files here</translation>
    </message>
    <message>
        <source>Then choose a format and press Convert All</source>
        <translation>Then choose a format and press Convert All</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>Convert</translation>
    </message>
    <message>
        <source>Convert All</source>
        <translation>Convert All</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message>
        <source>Stop All</source>
        <translation>Stop All</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>Try again</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>Remove from the list</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Show in folder</translation>
    </message>
    <message>
        <source>Same folder as the source</source>
        <translation>Same folder as the source</translation>
    </message>
    <message>
        <source>Save to</source>
        <translation>Save to</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <source>Reading …</source>
        <translation>Reading…</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Waiting</translation>
    </message>
    <message>
        <source>Converting …</source>
        <translation>Converting…</translation>
    </message>
    <message>
        <source>Converted</source>
        <translation>Converted</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Stopped</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>%1 left</translation>
    </message>
    <message>
        <source>The window can&apos;t be made</source>
        <translation>The window can&apos;t be made</translation>
    </message>
    <message>
        <source>Same as source</source>
        <translation>Same as source</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>Voice</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Lossless</translation>
    </message>
    <message>
        <source>CD Quality</source>
        <translation>CD quality</translation>
    </message>
    <message>
        <source>32 bit float</source>
        <translation>32-bit float</translation>
    </message>
    <message>
        <source>32 bit</source>
        <translation>32 bit</translation>
    </message>
    <message>
        <source>24 bit</source>
        <translation>24 bit</translation>
    </message>
    <message>
        <source>16 bit</source>
        <translation>16 bit</translation>
    </message>
    <message>
        <source>Surround 5.1</source>
        <translation>Surround 5.1</translation>
    </message>
    <message>
        <source>Wideband</source>
        <translation>Wideband</translation>
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
        <translation>4K TV</translation>
    </message>
    <message>
        <source>4K TV MKV</source>
        <translation>4K TV MKV</translation>
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
        <translation>Full HD TV</translation>
    </message>
    <message>
        <source>Full HD TV TS</source>
        <translation>Full HD TV TS</translation>
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
        <translation>HD Ready TV</translation>
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
        <translation>Square HD 1080P</translation>
    </message>
    <message>
        <source>Square HD 720P</source>
        <translation>Square HD 720P</translation>
    </message>
    <message>
        <source>Story HD 1080P</source>
        <translation>Story HD 1080P</translation>
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
        <translation>Video and audio files</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>All files</translation>
    </message>
    <message>
        <source>There are no video or audio files in the folder %1; add the files themselves</source>
        <translation>There are no video or audio files in the folder %1; add the files themselves</translation>
    </message>
    <message>
        <source>No file manager could be started to show the folder %1; open it by hand</source>
        <translation>No file manager could be started to show the folder %1; open it by hand</translation>
    </message>
    <message>
        <source>VexConvert can&apos;t open its window</source>
        <translation>VexConvert can’t open its window</translation>
    </message>
    <message>
        <source>%1 is the earliest possible time</source>
        <translation>%1 is the earliest possible time</translation>
    </message>
    <message>
        <source>%1 is the latest possible time</source>
        <translation>%1 is the latest possible time</translation>
    </message>
    <message>
        <source>For both pages; each can have its own settings below its list</source>
        <translation>For both pages; each can have its own settings below its list</translation>
    </message>
    <message>
        <source>This folder isn&apos;t there; choose another one</source>
        <translation>This folder isn’t there; choose another one</translation>
    </message>
    <message>
        <source>A name has no &quot;/&quot;; choose the folder in &quot;Save to&quot;</source>
        <translation>A name has no “/”; choose the folder in “Save to”</translation>
    </message>
    <message>
        <source>About VexConvert</source>
        <translation>About VexConvert</translation>
    </message>
    <message>
        <source>Add a number</source>
        <translation>Add a number</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>Add folder</translation>
    </message>
    <message>
        <source>As many as suit this machine</source>
        <translation>As many as suit this machine</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>As the desktop</translation>
    </message>
    <message>
        <source>Ask</source>
        <translation>Ask</translation>
    </message>
    <message>
        <source>Conversions at once</source>
        <translation>Conversions at once</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Cut in the editor</source>
        <translation>Cut in the editor</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>For example %1</source>
        <translation>For example %1</translation>
    </message>
    <message>
        <source>Holidays</source>
        <translation>Holidays</translation>
    </message>
    <message>
        <source>If a name is in use</source>
        <translation>If a name is in use</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Keep both</translation>
    </message>
    <message>
        <source>Language (from the next start)</source>
        <translation>Language (from the next start)</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Log</translation>
    </message>
    <message>
        <source>Make the subfolders of an added folder, too</source>
        <translation>Make the subfolders of an added folder, too</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>Names</translation>
    </message>
    <message>
        <source>Names in use</source>
        <translation>Names in use</translation>
    </message>
    <message>
        <source>Names of the results</source>
        <translation>Names of the results</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferences</translation>
    </message>
    <message>
        <source>Qt is under the LGPL 3, ffmpeg under the LGPL or the GPL.</source>
        <translation>Qt is under the LGPL 3, ffmpeg under the LGPL or the GPL.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Replace</translation>
    </message>
    <message>
        <source>Replace the file</source>
        <translation>Replace the file</translation>
    </message>
    <message>
        <source>Show log</source>
        <translation>Show log</translation>
    </message>
    <message>
        <source>Estimate sizes from short samples</source>
        <translation>Estimate sizes from short samples</translation>
    </message>
    <message>
        <source>Show no animations</source>
        <translation>Show no animations</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Skip</translation>
    </message>
    <message>
        <source>Skip the file</source>
        <translation>Skip the file</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Theme</translation>
    </message>
    <message>
        <source>There is no field {%1}; use %2</source>
        <translation>There is no field {%1}; use %2</translation>
    </message>
    <message>
        <source>These are replaced: %1</source>
        <translation>These are replaced: %1</translation>
    </message>
    <message>
        <source>These files already exist:</source>
        <translation>These files already exist:</translation>
    </message>
    <message>
        <source>VexConvert is free software under the MIT licence.</source>
        <translation>VexConvert is free software under the MIT licence.</translation>
    </message>
    <message>
        <source>Write a time such as 1:02:03.5</source>
        <translation>Write a time such as 1:02:03.5</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>and %1 more</translation>
    </message>
    <message>
        <source>ffmpeg hasn&apos;t run for this file yet</source>
        <translation>ffmpeg hasn’t run for this file yet</translation>
    </message>
    <message>
        <source>was there already</source>
        <translation>was there already</translation>
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
        <translation>Tell me when all files are converted</translation>
    </message>
    <message>
        <source>%1 % smaller</source>
        <translation>%1% smaller</translation>
    </message>
    <message>
        <source>%1 % larger</source>
        <translation>%1% larger</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Paused</translation>
    </message>
    <message>
        <source>%1 is a picture; add video or audio files</source>
        <translation>%1 is a picture; add video or audio files</translation>
    </message>
    <message>
        <source>%1 is a playlist; add the files that it names instead</source>
        <translation>%1 is a playlist; add the files that it names instead</translation>
    </message>
    <message>
        <source>%1 is not on this computer; download it first and add the file</source>
        <translation>%1 is not on this computer; download it first and add the file</translation>
    </message>
    <message>
        <source>There is no file %1 any more; convert it again</source>
        <translation>There is no file %1 any more; convert it again</translation>
    </message>
    <message>
        <source>No player could be started for %1; open it by hand</source>
        <translation>No player could be started for %1; open it by hand</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 files</translation>
    </message>
    <message>
        <source>Already in the list: %1</source>
        <translation>Already in the list: %1</translation>
    </message>
    <message>
        <source>Add again</source>
        <translation>Add again</translation>
    </message>
    <message>
        <source>Removed: %1</source>
        <translation>Removed: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Converted already: %1</source>
        <translation>Converted already: %1</translation>
    </message>
    <message>
        <source>Convert again</source>
        <translation>Convert again</translation>
    </message>
    <message>
        <source>VexConvert was closed while it converted; Convert All goes on with what is left</source>
        <translation>VexConvert was closed while it converted; Convert All goes on with what is left</translation>
    </message>
    <message>
        <source>about %1</source>
        <translation>about %1</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>at most %1</translation>
    </message>
    <message>
        <source>Files converted: %1</source>
        <translation>Files converted: %1</translation>
    </message>
    <message>
        <source>failed: %1</source>
        <translation>failed: %1</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>Interrupted</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>Sort by</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duration</translation>
    </message>
    <message>
        <source>State</source>
        <translation>State</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Play</translation>
    </message>
    <message>
        <source>Choose a format …</source>
        <translation>Choose a format…</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Follow “Convert all to”</source>
        <translation>Follow “Convert all to”</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Select all</translation>
    </message>
    <message>
        <source>Ctrl+A</source>
        <translation>Ctrl+A</translation>
    </message>
    <message>
        <source>Del</source>
        <translation>Del</translation>
    </message>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%1 of %2 selected</translation>
    </message>
    <message>
        <source>Files: %1</source>
        <translation>Files: %1</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Resume</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Clear converted</source>
        <translation>Clear converted</translation>
    </message>
    <message>
        <source>Stop converting?</source>
        <translation>Stop converting?</translation>
    </message>
    <message>
        <source>The list is kept: you can convert the rest the next time.</source>
        <translation>The list is kept: you can convert the rest the next time.</translation>
    </message>
    <message>
        <source>Stop and close</source>
        <translation>Stop and close</translation>
    </message>
    <message>
        <source>Keep converting</source>
        <translation>Keep converting</translation>
    </message>
    <message>
        <source>Use %1</source>
        <translation>Use %1</translation>
    </message>
    <message>
        <source>Audio tracks</source>
        <translation>Audio tracks</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation>Subtitles</translation>
    </message>
    <message>
        <source>No audio tracks or subtitles</source>
        <translation>No audio tracks or subtitles</translation>
    </message>
    <message>
        <source>Default track</source>
        <translation>Default track</translation>
    </message>
    <message>
        <source>Default track: %1</source>
        <translation>Default track: %1</translation>
    </message>
    <message>
        <source>Burn in</source>
        <translation>Burn in</translation>
    </message>
    <message>
        <source>Burn in: %1</source>
        <translation>Burn in: %1</translation>
    </message>
    <message>
        <source>Draws these subtitles onto the picture</source>
        <translation>Draws these subtitles onto the picture</translation>
    </message>
    <message>
        <source>Show tracks</source>
        <translation>Show tracks</translation>
    </message>
    <message>
        <source>Hide tracks</source>
        <translation>Hide tracks</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Space</translation>
    </message>
    <message>
        <source>not in .%1</source>
        <translation>not in .%1</translation>
    </message>
    <message>
        <source>forced</source>
        <translation>forced</translation>
    </message>
    <message>
        <source>%1 channels</source>
        <translation>%1 channels</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Found by: %1</source>
        <translation>Found by: %1</translation>
    </message>
    <message>
        <source>Can’t be used: %1</source>
        <translation>Can’t be used: %1</translation>
    </message>
    <message>
        <source>Remove from the favorites</source>
        <translation>Remove from the favorites</translation>
    </message>
    <message>
        <source>Add to the favorites</source>
        <translation>Add to the favorites</translation>
    </message>
    <message>
        <source>More about %1</source>
        <translation>More about %1</translation>
    </message>
    <message>
        <source>Find a preset</source>
        <translation>Find a preset</translation>
    </message>
    <message>
        <source>Find a preset (Ctrl+F)</source>
        <translation>Find a preset (Ctrl+F)</translation>
    </message>
    <message>
        <source>Import or export presets</source>
        <translation>Import or export presets</translation>
    </message>
    <message>
        <source>Import presets …</source>
        <translation>Import presets…</translation>
    </message>
    <message>
        <source>Import presets</source>
        <translation>Import presets</translation>
    </message>
    <message>
        <source>Export presets</source>
        <translation>Export presets</translation>
    </message>
    <message>
        <source>Export all my presets …</source>
        <translation>Export all my presets…</translation>
    </message>
    <message>
        <source>For the selected files: %1</source>
        <translation>For the selected files: %1</translation>
    </message>
    <message>
        <source>For all files</source>
        <translation>For all files</translation>
    </message>
    <message>
        <source>Presets: %1</source>
        <translation>Presets: %1</translation>
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
        <translation>Use this preset</translation>
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
        <translation>Alt+Up</translation>
    </message>
    <message>
        <source>Alt+Down</source>
        <translation>Alt+Down</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplicate</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rename</translation>
    </message>
    <message>
        <source>What has been changed …</source>
        <translation>What has been changed…</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Move up</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Move down</translation>
    </message>
    <message>
        <source>Default on the command line for</source>
        <translation>Default on the command line for</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>Videos</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>Audio files</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Pictures</translation>
    </message>
    <message>
        <source>Export …</source>
        <translation>Export…</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filters</translation>
    </message>
    <message>
        <source>My presets</source>
        <translation>My presets</translation>
    </message>
    <message>
        <source>Try 10 seconds</source>
        <translation>Try 10 seconds</translation>
    </message>
    <message>
        <source>Changes in “%1”</source>
        <translation>Changes in “%1”</translation>
    </message>
    <message>
        <source>It isn’t known what this preset was made from.</source>
        <translation>It isn’t known what this preset was made from.</translation>
    </message>
    <message>
        <source>None: all values are those of %1.</source>
        <translation>None: all values are those of %1.</translation>
    </message>
    <message>
        <source>It was made from %1, with these changes:</source>
        <translation>It was made from %1, with these changes:</translation>
    </message>
    <message>
        <source>Take back</source>
        <translation>Take back</translation>
    </message>
    <message>
        <source>Take all back</source>
        <translation>Take all back</translation>
    </message>
    <message>
        <source>new</source>
        <translation>new</translation>
    </message>
    <message>
        <source>already there</source>
        <translation>already there</translation>
    </message>
    <message>
        <source>another one is there</source>
        <translation>another one is there</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>refused</translation>
    </message>
    <message>
        <source>If you have another one of this title and format</source>
        <translation>If you have another one of this title and format</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>Trying 10 seconds of %1 …</source>
        <translation>Trying 10 seconds of %1…</translation>
    </message>
    <message>
        <source>All of %1 would be about %2.</source>
        <translation>All of %1 would be about %2.</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>Play again</translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation>%1 (copy)</translation>
    </message>
    <message>
        <source>a preset that is no longer there</source>
        <translation>a preset that is no longer there</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Undone: %1</translation>
    </message>
    <message>
        <source>%1 presets</source>
        <translation>%1 presets</translation>
    </message>
    <message>
        <source>Presets changed: %1</source>
        <translation>Presets changed: %1</translation>
    </message>
    <message>
        <source>Changed: %1</source>
        <translation>Changed: %1</translation>
    </message>
    <message>
        <source>Deleted: %1</source>
        <translation>Deleted: %1</translation>
    </message>
    <message>
        <source>The temporary folder can’t be written (%1); check the disk</source>
        <translation>The temporary folder can’t be written (%1); check the disk</translation>
    </message>
    <message>
        <source>good for “%1”</source>
        <translation>good for “%1”</translation>
    </message>
    <message>
        <source>Type a device, a site, a codec, a size or a purpose, such as “iphone 1080” or “small”.</source>
        <translation>Type a device, a site, a codec, a size or a purpose, such as “iphone 1080” or “small”.</translation>
    </message>
    <message>
        <source>No preset has all of this; leave out a word or a filter.</source>
        <translation>No preset has all of this; leave out a word or a filter.</translation>
    </message>
    <message>
        <source>No preset is known for “%1”.</source>
        <translation>No preset is known for “%1”.</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>Favorites</translation>
    </message>
    <message>
        <source>Recently used</source>
        <translation>Recently used</translation>
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
        <translation>automatic</translation>
    </message>
    <message>
        <source>You have no presets of your own yet.</source>
        <translation>You have no presets of your own yet.</translation>
    </message>
    <message>
        <source>Exported: %1</source>
        <translation>Exported: %1</translation>
    </message>
    <message>
        <source>%1 can’t be written (%2); choose another folder</source>
        <translation>%1 can’t be written (%2); choose another folder</translation>
    </message>
    <message>
        <source>Presets imported: %1</source>
        <translation>Presets imported: %1</translation>
    </message>
    <message>
        <source>Files of presets</source>
        <translation>Files of presets</translation>
    </message>
    <message>
        <source>approximated</source>
        <translation>approximated</translation>
    </message>
    <message>
        <source>lost</source>
        <translation>lost</translation>
    </message>
    <message>
        <source>No preset was imported.</source>
        <translation>No preset was imported.</translation>
    </message>
    <message>
        <source>no file yet</source>
        <translation>no file yet</translation>
    </message>
</context>
<context>
    <name>HandBrake</name>
    <message>
        <source>all tracks; &quot;convert --audio&quot; chooses</source>
        <translation>all tracks; choose in the file’s row</translation>
    </message>
</context>
<context>
    <name>HandBrakeLeftovers</name>
    <message>
        <source>&quot;convert --burn-subtitles&quot; chooses a track</source>
        <translation>choose a track in the file’s row to burn it in</translation>
    </message>
    <message>
        <source>&quot;convert --subtitles&quot; chooses tracks</source>
        <translation>choose tracks in the file’s row</translation>
    </message>
    <message>
        <source>all that the format holds; &quot;convert --subtitles&quot; chooses</source>
        <translation>all that the format holds; choose in the file’s row</translation>
    </message>
</context>
</TS>
