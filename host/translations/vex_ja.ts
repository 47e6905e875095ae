<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Vex</name>
    <message>
        <source>Convert all to</source>
        <translation>すべての変換先</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>形式</translation>
    </message>
    <message>
        <source>recently</source>
        <translation>最近使用</translation>
    </message>
    <message>
        <source>video</source>
        <translation>動画</translation>
    </message>
    <message>
        <source>audio</source>
        <translation>音声</translation>
    </message>
    <message>
        <source>device</source>
        <translation>デバイス</translation>
    </message>
    <message>
        <source>socialVideo</source>
        <translation>Web 動画</translation>
    </message>
    <message>
        <source>Format search</source>
        <translation>形式を検索</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>データなし</translation>
    </message>
    <message>
        <source>Keep Orignal</source>
        <translation>元のまま</translation>
    </message>
    <message>
        <source>Smart Fit</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>The selected format cannot be deleted because it is in use.</source>
        <translation>選択した形式は使用中のため削除できません。</translation>
    </message>
    <message>
        <source>The format you searched for was not found</source>
        <translation>検索した形式は見つかりませんでした</translation>
    </message>
    <message>
        <source>Preference</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>custom</source>
        <translation>カスタム</translation>
    </message>
    <message>
        <source>custom preset</source>
        <translation>カスタム</translation>
    </message>
    <message>
        <source>, </source>
        <translation>、</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品質</translation>
    </message>
    <message>
        <source>High Quality</source>
        <translation>高品質</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Low Quality</source>
        <translation>低品質</translation>
    </message>
    <message>
        <source>Middle Quality</source>
        <translation>中品質</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>動画</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音声</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>コーデック</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>フレームレート</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Bitrate</source>
        <translation>ビットレート</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>チャンネル</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>サンプルレート</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>作成</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>お知らせ</translation>
    </message>
    <message>
        <source>Converter</source>
        <translation>変換</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Add files</source>
        <translation>ファイルを追加</translation>
    </message>
    <message>
        <source>Choose folder</source>
        <translation>フォルダーを選択</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Drop video or audio files here</source>
        <translation>動画や音声ファイルをここにドロップ</translation>
    </message>
    <message>
        <source>Then choose a format and press Convert All</source>
        <translation>形式を選んで「すべて変換」を押してください</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>変換</translation>
    </message>
    <message>
        <source>Convert All</source>
        <translation>すべて変換</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>中止</translation>
    </message>
    <message>
        <source>Stop All</source>
        <translation>すべて中止</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>リストから外す</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>フォルダーに表示</translation>
    </message>
    <message>
        <source>Same folder as the source</source>
        <translation>元のファイルと同じフォルダー</translation>
    </message>
    <message>
        <source>Save to</source>
        <translation>保存先</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>End</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Reading …</source>
        <translation>読み込み中…</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Converting …</source>
        <translation>変換中…</translation>
    </message>
    <message>
        <source>Converted</source>
        <translation>変換しました</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>中止しました</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>残り %1</translation>
    </message>
    <message>
        <source>The window can&apos;t be made</source>
        <translation>ウィンドウを作成できません</translation>
    </message>
    <message>
        <source>Same as source</source>
        <translation>元と同じ</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>ボイス</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>ロスレス</translation>
    </message>
    <message>
        <source>CD Quality</source>
        <translation>CD 品質</translation>
    </message>
    <message>
        <source>32 bit float</source>
        <translation>32 ビット浮動小数</translation>
    </message>
    <message>
        <source>32 bit</source>
        <translation>32 ビット</translation>
    </message>
    <message>
        <source>24 bit</source>
        <translation>24 ビット</translation>
    </message>
    <message>
        <source>16 bit</source>
        <translation>16 ビット</translation>
    </message>
    <message>
        <source>Surround 5.1</source>
        <translation>サラウンド 5.1</translation>
    </message>
    <message>
        <source>Wideband</source>
        <translation>広帯域</translation>
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
        <translation>4Kテレビ</translation>
    </message>
    <message>
        <source>4K TV MKV</source>
        <translation>4Kテレビ MKV</translation>
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
        <translation>クリップ縦長 HD 1080P</translation>
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
        <translation>フルHDテレビ</translation>
    </message>
    <message>
        <source>Full HD TV TS</source>
        <translation>フルHDテレビ TS</translation>
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
        <translation>HDテレビ</translation>
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
        <translation>縦長 4:5</translation>
    </message>
    <message>
        <source>Portrait 4K</source>
        <translation>縦長 4K</translation>
    </message>
    <message>
        <source>Portrait HD 1080P</source>
        <translation>縦長 HD 1080P</translation>
    </message>
    <message>
        <source>Portrait HD 1200P</source>
        <translation>縦長 HD 1200P</translation>
    </message>
    <message>
        <source>Portrait HD 720P</source>
        <translation>縦長 HD 720P</translation>
    </message>
    <message>
        <source>Portrait SD 540P</source>
        <translation>縦長 SD 540P</translation>
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
        <translation>スマートテレビ 4K</translation>
    </message>
    <message>
        <source>Smart TV HD 1080P</source>
        <translation>スマートテレビ HD 1080P</translation>
    </message>
    <message>
        <source>Smart TV HD 720P</source>
        <translation>スマートテレビ HD 720P</translation>
    </message>
    <message>
        <source>Square HD 1080P</source>
        <translation>正方形 HD 1080P</translation>
    </message>
    <message>
        <source>Square HD 720P</source>
        <translation>正方形 HD 720P</translation>
    </message>
    <message>
        <source>Story HD 1080P</source>
        <translation>ストーリー HD 1080P</translation>
    </message>
    <message>
        <source>TV Box 4K</source>
        <translation>テレビボックス 4K</translation>
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
        <translation>動画と音声ファイル</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>すべてのファイル</translation>
    </message>
    <message>
        <source>There are no video or audio files in the folder %1; add the files themselves</source>
        <translation>フォルダー %1 には動画も音声ファイルもありません。ファイルを直接追加してください</translation>
    </message>
    <message>
        <source>No file manager could be started to show the folder %1; open it by hand</source>
        <translation>フォルダー %1 を表示するファイルマネージャーを起動できませんでした。手動で開いてください</translation>
    </message>
    <message>
        <source>VexConvert can&apos;t open its window</source>
        <translation>VexConvert のウィンドウを開けません</translation>
    </message>
    <message>
        <source>%1 is the earliest possible time</source>
        <translation>%1 が最も早い時刻です</translation>
    </message>
    <message>
        <source>%1 is the latest possible time</source>
        <translation>%1 が最も遅い時刻です</translation>
    </message>
    <message>
        <source>For both pages; each can have its own settings below its list</source>
        <translation>両方のページに共通です。リストの下で個別に変更できます。</translation>
    </message>
    <message>
        <source>This folder isn&apos;t there; choose another one</source>
        <translation>このフォルダーはありません。別のフォルダーを選んでください</translation>
    </message>
    <message>
        <source>A name has no &quot;/&quot;; choose the folder in &quot;Save to&quot;</source>
        <translation>名前に「/」は使えません。フォルダーは「保存先」で選んでください</translation>
    </message>
    <message>
        <source>About VexConvert</source>
        <translation>VexConvert について</translation>
    </message>
    <message>
        <source>Add a number</source>
        <translation>番号を付ける</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>フォルダーを追加</translation>
    </message>
    <message>
        <source>As many as suit this machine</source>
        <translation>このコンピューターに適した数</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>デスクトップと同じ</translation>
    </message>
    <message>
        <source>Ask</source>
        <translation>確認する</translation>
    </message>
    <message>
        <source>Conversions at once</source>
        <translation>同時に変換する数</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Cut in the editor</source>
        <translation>「編集」で切り出す</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>For example %1</source>
        <translation>例: %1</translation>
    </message>
    <message>
        <source>Holidays</source>
        <translation>休暇</translation>
    </message>
    <message>
        <source>If a name is in use</source>
        <translation>名前が使われている場合</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>両方残す</translation>
    </message>
    <message>
        <source>Language (from the next start)</source>
        <translation>言語（次回起動時から）</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Make the subfolders of an added folder, too</source>
        <translation>追加したフォルダーのサブフォルダーも作る</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Names in use</source>
        <translation>使用中の名前</translation>
    </message>
    <message>
        <source>Names of the results</source>
        <translation>結果の名前</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>環境設定</translation>
    </message>
    <message>
        <source>Qt is under the LGPL 3, ffmpeg under the LGPL or the GPL.</source>
        <translation>Qt のライセンスは LGPL 3、ffmpeg は LGPL または GPL です。</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>置き換える</translation>
    </message>
    <message>
        <source>Replace the file</source>
        <translation>ファイルを置き換える</translation>
    </message>
    <message>
        <source>Show log</source>
        <translation>ログを表示</translation>
    </message>
    <message>
        <source>Estimate sizes from short samples</source>
        <translation>短いサンプルからサイズを見積もる</translation>
    </message>
    <message>
        <source>Show no animations</source>
        <translation>アニメーションを表示しない</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>スキップ</translation>
    </message>
    <message>
        <source>Skip the file</source>
        <translation>ファイルをスキップ</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>テーマ</translation>
    </message>
    <message>
        <source>There is no field {%1}; use %2</source>
        <translation>{%1} という項目はありません。使えるのは %2 です</translation>
    </message>
    <message>
        <source>These are replaced: %1</source>
        <translation>次の部分が置き換わります: %1</translation>
    </message>
    <message>
        <source>These files already exist:</source>
        <translation>次のファイルがすでにあります:</translation>
    </message>
    <message>
        <source>VexConvert is free software under the MIT licence.</source>
        <translation>VexConvert は MIT ライセンスの自由ソフトウェアです。</translation>
    </message>
    <message>
        <source>Write a time such as 1:02:03.5</source>
        <translation>1:02:03.5 のような時刻を入力してください</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>ほか %1 件</translation>
    </message>
    <message>
        <source>ffmpeg hasn&apos;t run for this file yet</source>
        <translation>このファイルではまだ ffmpeg が動いていません</translation>
    </message>
    <message>
        <source>was there already</source>
        <translation>すでにありました</translation>
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
        <translation>すべて変換し終えたら知らせる</translation>
    </message>
    <message>
        <source>%1 % smaller</source>
        <translation>%1% 減</translation>
    </message>
    <message>
        <source>%1 % larger</source>
        <translation>%1% 増</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>%1 is a picture; add video or audio files</source>
        <translation>%1 は画像です。動画または音声ファイルを追加してください</translation>
    </message>
    <message>
        <source>%1 is a playlist; add the files that it names instead</source>
        <translation>%1 はプレイリストです。中のファイルを追加してください</translation>
    </message>
    <message>
        <source>%1 is not on this computer; download it first and add the file</source>
        <translation>%1 はこのコンピューターにありません。先にダウンロードしてファイルを追加してください</translation>
    </message>
    <message>
        <source>There is no file %1 any more; convert it again</source>
        <translation>ファイル %1 はもうありません。もう一度変換してください</translation>
    </message>
    <message>
        <source>No player could be started for %1; open it by hand</source>
        <translation>%1 を再生するプレーヤーを起動できませんでした。手動で開いてください</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 個のファイル</translation>
    </message>
    <message>
        <source>Already in the list: %1</source>
        <translation>すでにリストにあります: %1</translation>
    </message>
    <message>
        <source>Add again</source>
        <translation>もう一度追加</translation>
    </message>
    <message>
        <source>Removed: %1</source>
        <translation>リストから外しました: %1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Converted already: %1</source>
        <translation>すでに変換済み: %1</translation>
    </message>
    <message>
        <source>Convert again</source>
        <translation>もう一度変換</translation>
    </message>
    <message>
        <source>VexConvert was closed while it converted; Convert All goes on with what is left</source>
        <translation>変換中に VexConvert が終了しました。「すべて変換」で残りを続けられます</translation>
    </message>
    <message>
        <source>about %1</source>
        <translation>約 %1</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>最大 %1</translation>
    </message>
    <message>
        <source>Files converted: %1</source>
        <translation>変換したファイル: %1</translation>
    </message>
    <message>
        <source>failed: %1</source>
        <translation>失敗: %1</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>中断されました</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>並べ替え</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Choose a format …</source>
        <translation>形式を選ぶ…</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Follow “Convert all to”</source>
        <translation>「すべての変換先」に従う</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>すべて選択</translation>
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
        <translation>%2 個中 %1 個を選択</translation>
    </message>
    <message>
        <source>Files: %1</source>
        <translation>ファイル: %1</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>再開</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Clear converted</source>
        <translation>変換済みを外す</translation>
    </message>
    <message>
        <source>Stop converting?</source>
        <translation>変換を中止しますか？</translation>
    </message>
    <message>
        <source>The list is kept: you can convert the rest the next time.</source>
        <translation>リストは残るので、残りは次回に変換できます。</translation>
    </message>
    <message>
        <source>Stop and close</source>
        <translation>中止して閉じる</translation>
    </message>
    <message>
        <source>Keep converting</source>
        <translation>変換を続ける</translation>
    </message>
    <message>
        <source>Use %1</source>
        <translation>「%1」を使う</translation>
    </message>
    <message>
        <source>Audio tracks</source>
        <translation>音声トラック</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation>字幕</translation>
    </message>
    <message>
        <source>No audio tracks or subtitles</source>
        <translation>音声トラックも字幕もありません</translation>
    </message>
    <message>
        <source>Default track</source>
        <translation>既定のトラック</translation>
    </message>
    <message>
        <source>Default track: %1</source>
        <translation>既定のトラック: %1</translation>
    </message>
    <message>
        <source>Burn in</source>
        <translation>焼き込む</translation>
    </message>
    <message>
        <source>Burn in: %1</source>
        <translation>焼き込む: %1</translation>
    </message>
    <message>
        <source>Draws these subtitles onto the picture</source>
        <translation>この字幕を映像に描き込みます</translation>
    </message>
    <message>
        <source>Show tracks</source>
        <translation>トラックを表示</translation>
    </message>
    <message>
        <source>Hide tracks</source>
        <translation>トラックを隠す</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>スペース</translation>
    </message>
    <message>
        <source>not in .%1</source>
        <translation>.%1 には入りません</translation>
    </message>
    <message>
        <source>forced</source>
        <translation>強制</translation>
    </message>
    <message>
        <source>%1 channels</source>
        <translation>%1 チャンネル</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Found by: %1</source>
        <translation>一致: %1</translation>
    </message>
    <message>
        <source>Can’t be used: %1</source>
        <translation>使用できません: %1</translation>
    </message>
    <message>
        <source>Remove from the favorites</source>
        <translation>お気に入りから外す</translation>
    </message>
    <message>
        <source>Add to the favorites</source>
        <translation>お気に入りに追加</translation>
    </message>
    <message>
        <source>More about %1</source>
        <translation>%1 のその他の操作</translation>
    </message>
    <message>
        <source>Find a preset</source>
        <translation>プリセットを検索</translation>
    </message>
    <message>
        <source>Find a preset (Ctrl+F)</source>
        <translation>プリセットを検索 (Ctrl+F)</translation>
    </message>
    <message>
        <source>Import or export presets</source>
        <translation>プリセットの読み込みと書き出し</translation>
    </message>
    <message>
        <source>Import presets …</source>
        <translation>プリセットを読み込む…</translation>
    </message>
    <message>
        <source>Import presets</source>
        <translation>プリセットを読み込む</translation>
    </message>
    <message>
        <source>Export presets</source>
        <translation>プリセットを書き出す</translation>
    </message>
    <message>
        <source>Export all my presets …</source>
        <translation>自分のプリセットをすべて書き出す…</translation>
    </message>
    <message>
        <source>For the selected files: %1</source>
        <translation>選択したファイル用: %1</translation>
    </message>
    <message>
        <source>For all files</source>
        <translation>すべてのファイル用</translation>
    </message>
    <message>
        <source>Presets: %1</source>
        <translation>プリセット: %1</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>メモ</translation>
    </message>
    <message>
        <source>Note …</source>
        <translation>メモ…</translation>
    </message>
    <message>
        <source>Use this preset</source>
        <translation>このプリセットを使う</translation>
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
        <translation>Alt+↑</translation>
    </message>
    <message>
        <source>Alt+Down</source>
        <translation>Alt+↓</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>名前を変更</translation>
    </message>
    <message>
        <source>What has been changed …</source>
        <translation>変更内容…</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上へ移動</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下へ移動</translation>
    </message>
    <message>
        <source>Default on the command line for</source>
        <translation>コマンドラインの既定</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>動画</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>音声ファイル</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Export …</source>
        <translation>書き出す…</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>フィルター</translation>
    </message>
    <message>
        <source>My presets</source>
        <translation>マイプリセット</translation>
    </message>
    <message>
        <source>Try 10 seconds</source>
        <translation>10 秒だけ試す</translation>
    </message>
    <message>
        <source>Changes in “%1”</source>
        <translation>「%1」の変更</translation>
    </message>
    <message>
        <source>It isn’t known what this preset was made from.</source>
        <translation>このプリセットの元は不明です。</translation>
    </message>
    <message>
        <source>None: all values are those of %1.</source>
        <translation>変更はありません。値はすべて %1 と同じです。</translation>
    </message>
    <message>
        <source>It was made from %1, with these changes:</source>
        <translation>%1 から次の変更で作成されました:</translation>
    </message>
    <message>
        <source>Take back</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Take all back</source>
        <translation>すべて元に戻す</translation>
    </message>
    <message>
        <source>new</source>
        <translation>新規</translation>
    </message>
    <message>
        <source>already there</source>
        <translation>すでにあります</translation>
    </message>
    <message>
        <source>another one is there</source>
        <translation>別のものがあります</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>読み込めません</translation>
    </message>
    <message>
        <source>If you have another one of this title and format</source>
        <translation>同じ名前と形式のものがある場合</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>読み込む</translation>
    </message>
    <message>
        <source>Trying 10 seconds of %1 …</source>
        <translation>%1 を 10 秒試しています…</translation>
    </message>
    <message>
        <source>All of %1 would be about %2.</source>
        <translation>%1 全体では約 %2 になります。</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>もう一度再生</translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation>%1（コピー）</translation>
    </message>
    <message>
        <source>a preset that is no longer there</source>
        <translation>もう存在しないプリセット</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>元に戻しました: %1</translation>
    </message>
    <message>
        <source>%1 presets</source>
        <translation>%1 個のプリセット</translation>
    </message>
    <message>
        <source>Presets changed: %1</source>
        <translation>変更したプリセット: %1</translation>
    </message>
    <message>
        <source>Changed: %1</source>
        <translation>変更しました: %1</translation>
    </message>
    <message>
        <source>Deleted: %1</source>
        <translation>削除しました: %1</translation>
    </message>
    <message>
        <source>The temporary folder can’t be written (%1); check the disk</source>
        <translation>一時フォルダーに書き込めません（%1）。ディスクを確認してください</translation>
    </message>
    <message>
        <source>good for “%1”</source>
        <translation>「%1」向き</translation>
    </message>
    <message>
        <source>Type a device, a site, a codec, a size or a purpose, such as “iphone 1080” or “small”.</source>
        <translation>「iphone 1080」や「小さい」のように、機器、サイト、コーデック、サイズ、用途を入力してください。</translation>
    </message>
    <message>
        <source>No preset has all of this; leave out a word or a filter.</source>
        <translation>すべてに合うプリセットはありません。語かフィルターを減らしてください。</translation>
    </message>
    <message>
        <source>No preset is known for “%1”.</source>
        <translation>「%1」のプリセットはありません。</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>お気に入り</translation>
    </message>
    <message>
        <source>Recently used</source>
        <translation>最近使ったもの</translation>
    </message>
    <message>
        <source>mono</source>
        <translation>モノラル</translation>
    </message>
    <message>
        <source>stereo</source>
        <translation>ステレオ</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>You have no presets of your own yet.</source>
        <translation>自分のプリセットはまだありません。</translation>
    </message>
    <message>
        <source>Exported: %1</source>
        <translation>書き出しました: %1</translation>
    </message>
    <message>
        <source>%1 can’t be written (%2); choose another folder</source>
        <translation>%1 を書き込めません（%2）。別のフォルダーを選んでください</translation>
    </message>
    <message>
        <source>Presets imported: %1</source>
        <translation>読み込んだプリセット: %1</translation>
    </message>
    <message>
        <source>Files of presets</source>
        <translation>プリセットのファイル</translation>
    </message>
    <message>
        <source>approximated</source>
        <translation>近似</translation>
    </message>
    <message>
        <source>lost</source>
        <translation>失われる</translation>
    </message>
    <message>
        <source>No preset was imported.</source>
        <translation>プリセットは読み込まれませんでした。</translation>
    </message>
    <message>
        <source>no file yet</source>
        <translation>ファイルなし</translation>
    </message>
</context>
<context>
    <name>OutputStreams</name>
    <message>
        <source>has no video; choose an audio preset</source>
        <translation>動画がありません。音声のプリセットを選んでください</translation>
    </message>
    <message>
        <source>has no audio; choose a video preset</source>
        <translation>音声がありません。動画の形式を選んでください</translation>
    </message>
    <message>
        <source>a .%1 file can&apos;t hold video; choose an audio preset</source>
        <translation>.%1 ファイルに動画は入りません。音声のプリセットを選んでください</translation>
    </message>
    <message>
        <source>is a single picture and makes no film; on the command line, --duration SECONDS shows it for so long</source>
        <translation>1 枚の画像なので映像になりません。コマンドラインの --duration SECONDS でその秒数だけ表示できます</translation>
    </message>
    <message>
        <source>has %1 audio tracks, so no number %2; choose another one</source>
        <translation>音声トラックは %1 本で %2 番はありません。別の番号を選んでください</translation>
    </message>
    <message>
        <source>none of its audio tracks is kept; keep one</source>
        <translation>残す音声トラックがありません。1 本を残してください</translation>
    </message>
</context>
<context>
    <name>EncoderChoice</name>
    <message>
        <source>needs the encoder %1 for %2, which this ffmpeg lacks; choose a preset with another encoder or install an ffmpeg that has it</source>
        <translation>%2 にはエンコーダー %1 が必要ですが、この ffmpeg にはありません。別のエンコーダーの形式を選ぶか、対応する ffmpeg をインストールしてください</translation>
    </message>
    <message>
        <source> or </source>
        <translation> または </translation>
    </message>
</context>
<context>
    <name>RateControl</name>
    <message>
        <source>says no length, so that no bitrate gives it the asked size; choose a bitrate instead</source>
        <translation>長さの情報がないため、指定のサイズになるビットレートを決められません。代わりにビットレートを選んでください</translation>
    </message>
    <message>
        <source>is too long for the asked size; choose a larger size or less audio</source>
        <translation>指定のサイズには長すぎます。より大きいサイズか、より少ない音声を選んでください</translation>
    </message>
</context>
<context>
    <name>EncoderList</name>
    <message>
        <source>%1 doesn&apos;t list its encoders (%2); check that &quot;%1 -encoders&quot; works, or install another ffmpeg</source>
        <translation>%1 がエンコーダーの一覧を返しません（%2）。「%1 -encoders」で一覧が表示されるか確認するか、別の ffmpeg をインストールしてください</translation>
    </message>
</context>
<context>
    <name>Conversion</name>
    <message>
        <source>the disk with %1 is full; free some space or choose another folder</source>
        <translation>%1 のディスクがいっぱいです。空きを作るか別のフォルダーを選んでください</translation>
    </message>
    <message>
        <source>ffmpeg couldn&apos;t convert it (%1); check the file or try another preset</source>
        <translation>ffmpeg で変換できませんでした（%1）。ファイルを確認するか別の形式をお試しください</translation>
    </message>
    <message>
        <source>ffmpeg wrote a file that can&apos;t be played; try another preset</source>
        <translation>再生できないファイルができました。別の形式をお試しください</translation>
    </message>
    <message>
        <source>holds %1 of %2 s: the source ends early or is damaged</source>
        <translation>%2 秒のうち %1 秒です: 元のファイルが途中で終わっているか壊れています</translation>
    </message>
    <message>
        <source>its video is HDR, and this ffmpeg can&apos;t map that to ordinary colours; install an ffmpeg with zscale and tonemap</source>
        <translation>HDR の動画ですが、この ffmpeg では通常の色に変換できません。zscale と tonemap を備えた ffmpeg をインストールしてください</translation>
    </message>
    <message>
        <source>the encoder refuses these settings</source>
        <translation>エンコーダーがこの設定を受け付けません</translation>
    </message>
    <message>
        <source>this kind of file can&apos;t hold one of the streams</source>
        <translation>この種類のファイルに入らないトラックがあります</translation>
    </message>
    <message>
        <source>the source doesn&apos;t say when its frames are shown</source>
        <translation>元のファイルにフレームの表示時刻がありません</translation>
    </message>
</context>
<context>
    <name>MediaInput</name>
    <message>
        <source>is a playlist; choose the files that it lists</source>
        <translation>プレイリストです。その中のファイルを選んでください</translation>
    </message>
    <message>
        <source>stands for an image sequence; rename it and its folders without any of % * ? [ ] { }</source>
        <translation>連番画像を表す名前です。ファイル名とフォルダー名から % * ? [ ] { } を取り除いてください</translation>
    </message>
    <message>
        <source>is of a kind that isn&apos;t converted (%1); choose a video or audio file</source>
        <translation>変換できない種類のファイルです（%1）。動画または音声ファイルを選んでください</translation>
    </message>
</context>
<context>
    <name>MediaProbe</name>
    <message>
        <source>no such file; check its name</source>
        <translation>ファイルがありません。名前を確認してください</translation>
    </message>
    <message>
        <source>this is a folder; name the files in it</source>
        <translation>フォルダーです。中のファイルを選んでください</translation>
    </message>
    <message>
        <source>cannot be read as media (%1); check that it is a complete video or audio file</source>
        <translation>動画や音声として読めません（%1）。完全なファイルか確認してください</translation>
    </message>
    <message>
        <source>holds neither video nor audio; choose a video or audio file</source>
        <translation>動画も音声もありません。動画か音声のファイルを選んでください</translation>
    </message>
    <message>
        <source>takes too long to read; check the disk or network that it is on</source>
        <translation>読み取りに時間がかかりすぎています。保存先のディスクまたはネットワークを確認してください</translation>
    </message>
    <message>
        <source>describes itself without end; check that it is a complete video or audio file</source>
        <translation>ファイルの情報が際限なく続きます。完全な動画または音声ファイルか確認してください</translation>
    </message>
</context>
<context>
    <name>OutputSettings</name>
    <message>
        <source>files of the kind &quot;.%1&quot; can&apos;t be written; choose another preset</source>
        <translation>「.%1」のファイルは書き出せません。別の形式を選んでください</translation>
    </message>
    <message>
        <source>no encoder has a name like &quot;%1&quot;; choose another preset</source>
        <translation>「%1」という名前のエンコーダーはありません。別の形式を選んでください</translation>
    </message>
    <message>
        <source>the preset&apos;s %1 is %2; it must be 0 or %3; choose another preset</source>
        <translation>形式の %1 が %2 です。0 または %3 でなければなりません。別の形式を選んでください</translation>
    </message>
    <message>
        <source>not a valid number</source>
        <translation>無効な数値</translation>
    </message>
    <message>
        <source>the part to keep must begin at 0 or later and end after that; choose another part</source>
        <translation>残す部分は 0 以降に始まり、その後に終わらなければなりません。別の部分を選んでください</translation>
    </message>
</context>
<context>
    <name>PendingFile</name>
    <message>
        <source>the folder %1 doesn&apos;t exist; make it or choose another one</source>
        <translation>フォルダー %1 がありません。作成するか別のフォルダーを選んでください</translation>
    </message>
    <message>
        <source>can&apos;t write into the folder %1 (%2); choose another one</source>
        <translation>フォルダー %1 に書き込めません（%2）。別のフォルダーを選んでください</translation>
    </message>
    <message>
        <source>the result couldn&apos;t get its name in %1 (%2); choose another folder</source>
        <translation>%1 に結果を置けませんでした（%2）。別のフォルダーを選んでください</translation>
    </message>
</context>
<context>
    <name>PresetStore</name>
    <message>
        <source>can&apos;t write into the configuration folder %1 (%2); check its disk and its permissions</source>
        <translation>設定フォルダー %1 に書き込めません（%2）。ディスクと権限を確認してください</translation>
    </message>
    <message>
        <source>can&apos;t write %1, which is as before; check its disk and its permissions</source>
        <translation>%1 に書き込めず、元のままです。ディスクと権限を確認してください</translation>
    </message>
</context>
<context>
    <name>Tool</name>
    <message>
        <source>%1 is not on the PATH; install ffmpeg (Debian: apt-get install ffmpeg) and try again</source>
        <translation>%1 が PATH にありません。ffmpeg をインストール（Debian: apt-get install ffmpeg）してやり直してください</translation>
    </message>
    <message>
        <source>%1 couldn&apos;t be started (%2); close other programs or raise your limits on open files and processes (ulimit -n, ulimit -u), and try again</source>
        <translation>%1 を起動できませんでした（%2）。他のプログラムを閉じるか、開けるファイル数とプロセス数の上限（ulimit -n、ulimit -u）を上げて、もう一度お試しください</translation>
    </message>
</context>
<context>
    <name>ToolRun</name>
    <message>
        <source>%1 stopped without saying why</source>
        <translation>%1 は理由を示さずに止まりました</translation>
    </message>
    <message>
        <source>%1 took too long</source>
        <translation>%1 の処理に時間がかかりすぎました</translation>
    </message>
    <message>
        <source>%1 printed too much</source>
        <translation>%1 の出力が多すぎます</translation>
    </message>
</context>
<context>
    <name>FolderLock</name>
    <message>
        <source>another program</source>
        <translation>別のプログラム</translation>
    </message>
    <message>
        <source>%1 (process %2 on %3)</source>
        <translation>%1（%3 のプロセス %2）</translation>
    </message>
    <message>
        <source>can&apos;t write into the configuration folder %1 (%2); name another one</source>
        <translation>設定フォルダー %1 に書き込めません（%2）。別のフォルダーを指定してください</translation>
    </message>
    <message>
        <source>%1 is using the presets in %2; close it, or try again when it is done</source>
        <translation>%1 が %2 のプリセットを使っています。閉じるか、終わってからやり直してください</translation>
    </message>
    <message>
        <source>%1 is no plain file; remove it</source>
        <translation>%1 は通常のファイルではありません。削除してください</translation>
    </message>
    <message>
        <source>waiting for %1, which is using the presets in %2</source>
        <translation>%1 が %2 のプリセットを使い終わるのを待っています</translation>
    </message>
</context>
<context>
    <name>UserFile</name>
    <message>
        <source>%1 is no file; move it away</source>
        <translation>%1 はファイルではありません。別の場所に移してください</translation>
    </message>
    <message>
        <source>%1 has %2, and no more than %3 are read; move it away to start anew</source>
        <translation>%1 は %2 あり、%3 までしか読み込めません。別の場所に移すと新しく始められます</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read (%2); check its permissions</source>
        <translation>%1 を読めません（%2）。権限を確認してください</translation>
    </message>
    <message>
        <source>%1 is missing; put its last good copy, %2, in its place</source>
        <translation>%1 がありません。最後の正常なコピー %2 に戻してください</translation>
    </message>
    <message>
        <source>%1 is damaged; put its last good copy, %2, in its place</source>
        <translation>%1 が壊れています。最後の正常なコピー %2 に戻してください</translation>
    </message>
    <message>
        <source>%1 is empty and there is no good copy of it; remove it to start anew</source>
        <translation>%1 が空で、正常なコピーもありません。削除すると新しく始められます</translation>
    </message>
    <message>
        <source>%1 is damaged and there is no good copy of it; fix it, or move it away to start anew</source>
        <translation>%1 が壊れていて、正常なコピーもありません。修復するか、別の場所に移して新しく始めてください</translation>
    </message>
    <message>
        <source>%1 was empty and there is no good copy of it</source>
        <translation>%1 が空で、正常なコピーもありません</translation>
    </message>
    <message>
        <source>%1 was damaged and there is no good copy of it; it is kept as %2</source>
        <translation>%1 が壊れていて正常なコピーもありません。%2 として残しています</translation>
    </message>
    <message>
        <source>%1 was damaged; its last good copy, %2, is in its place, and the damaged file is kept as %3</source>
        <translation>%1 が壊れていたため、最後の正常なコピー %2 に戻しました。壊れたファイルは %3 として残しています</translation>
    </message>
    <message>
        <source>%1 was missing; its last good copy, %2, is in its place</source>
        <translation>%1 がなかったため、最後の正常なコピー %2 に戻しました</translation>
    </message>
    <message>
        <source>%1 was missing and its copy, %2, is damaged</source>
        <translation>%1 がなく、コピー %2 も壊れています</translation>
    </message>
    <message>
        <source>%1 was empty; its last good copy, %2, is in its place</source>
        <translation>%1 が空だったため、最後の正常なコピー %2 に戻しました</translation>
    </message>
    <message>
        <source>can&apos;t write %1 (%2), which is as before; check its disk and its permissions</source>
        <translation>%1 に書き込めず（%2）、元のままです。ディスクと権限を確認してください</translation>
    </message>
    <message>
        <source>can&apos;t keep the unusable presets of %1 in %2 (%3); check its disk and its permissions</source>
        <translation>%1 の使えないプリセットを %2 に残せません（%3）。ディスクと権限を確認してください</translation>
    </message>
    <message>
        <source>%1 holds presets without settings (&quot;outPutNode&quot;), which can&apos;t be used; they are kept in %2</source>
        <translation>%1 に設定内容（&quot;outPutNode&quot;）のない、使えないプリセットがあります。%2 に残しています</translation>
    </message>
</context>
<context>
    <name>Losses</name>
    <message>
        <source>left out: %1</source>
        <translation>含まれないもの: %1</translation>
    </message>
    <message>
        <source>%1 of %2 audio tracks (.%3 holds %4, .%5 holds all)</source>
        <translation>音声トラック %2 本のうち %1 本（.%3 は %4 本、.%5 はすべて）</translation>
    </message>
    <message>
        <source>subtitle tracks: %1 (%2; .%3 doesn&apos;t hold them, .%4 does)</source>
        <translation>字幕トラック: %1（%2。.%3 には入りませんが .%4 には入ります）</translation>
    </message>
    <message>
        <source>subtitle tracks: %1 (%2; no format holds them)</source>
        <translation>字幕トラック: %1（%2。入る形式がありません）</translation>
    </message>
    <message>
        <source>subtitle tracks: %1 (%2; they can&apos;t be written into this .%3)</source>
        <translation>字幕トラック: %1（%2。この .%3 には書き込めません）</translation>
    </message>
    <message>
        <source>more video tracks: %1 (a result has one)</source>
        <translation>その他の映像トラック: %1（結果は 1 本です）</translation>
    </message>
    <message>
        <source>attachments: %1 (.%2 doesn&apos;t hold them, .mkv does)</source>
        <translation>添付ファイル: %1（.%2 には入りませんが .mkv には入ります）</translation>
    </message>
    <message>
        <source>chapters: %1 (.%2 doesn&apos;t hold them, .%3 does)</source>
        <translation>チャプター: %1（.%2 には入りませんが .%3 には入ります）</translation>
    </message>
    <message>
        <source>the cover (.%1 doesn&apos;t hold it, .%2 does)</source>
        <translation>カバー画像（.%1 には入りませんが .%2 には入ります）</translation>
    </message>
</context>
<context>
    <name>SubtitlePlan</name>
    <message>
        <source>has %1 subtitle tracks, so no number %2; choose another one</source>
        <translation>字幕トラックは %1 本で %2 番はありません。別の番号を選んでください</translation>
    </message>
</context>
<context>
    <name>KeptQueue</name>
    <message>
        <source>it is of a newer version of the program</source>
        <translation>新しいバージョンのプログラムのものです</translation>
    </message>
    <message>
        <source>it holds no list of files</source>
        <translation>ファイルのリストが入っていません</translation>
    </message>
    <message>
        <source>The list of files of the last time can&apos;t be read (%1); it is now %2, and the window starts empty</source>
        <translation>前回のファイルのリストを読めません（%1）。%2 という名前にして、空のリストで始めます</translation>
    </message>
    <message>
        <source>The list of files of the last time can&apos;t be read (%1); remove %2 to let a new one be kept</source>
        <translation>前回のファイルのリストを読めません（%1）。新しいリストを残せるように %2 を削除してください</translation>
    </message>
    <message>
        <source>The list of files can&apos;t be kept in %1 (%2); free some space or check the folder&apos;s permissions</source>
        <translation>ファイルのリストを %1 に残せません（%2）。空きを増やすか、フォルダーの権限を確かめてください</translation>
    </message>
</context>
<context>
    <name>CodecWords</name>
    <message>
        <source>more than 8 bits only where the source has them</source>
        <translation>8ビットを超えるのはソースがそうである場合のみ</translation>
    </message>
    <message>
        <source>%1 is written without the graphics card</source>
        <translation>%1はグラフィックカードを使わずに書き出されます</translation>
    </message>
    <message>
        <source>audio of another codec is encoded</source>
        <translation>別のコーデックの音声はエンコードされます</translation>
    </message>
    <message>
        <source>AAC without its high-efficiency extension</source>
        <translation>高効率拡張なしのAAC</translation>
    </message>
    <message>
        <source>the encoder&apos;s usual speed</source>
        <translation>エンコーダーの通常の速度</translation>
    </message>
    <message>
        <source>%1 isn&apos;t tuned so</source>
        <translation>%1にはこの調整がありません</translation>
    </message>
    <message>
        <source>the encoder chooses the profile</source>
        <translation>プロファイルはエンコーダーが選びます</translation>
    </message>
    <message>
        <source>the encoder chooses the level</source>
        <translation>レベルはエンコーダーが選びます</translation>
    </message>
    <message>
        <source>the encoder chooses the key frames</source>
        <translation>キーフレームはエンコーダーが選びます</translation>
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
        <translation>同じ数値を別のエンコーダーに使います</translation>
    </message>
    <message>
        <source>the average bitrate is reached in one pass</source>
        <translation>平均ビットレートには1パスで到達します</translation>
    </message>
    <message>
        <source>a variable rate stays variable where the format has it</source>
        <translation>可変フレームレートは形式が対応していれば可変のままです</translation>
    </message>
    <message>
        <source>the rate is a limit; slower sources keep theirs</source>
        <translation>フレームレートは上限で、それより遅いソースはそのままです</translation>
    </message>
    <message>
        <source>each source&apos;s track is written once</source>
        <translation>ソースの各トラックは一度だけ書き出されます</translation>
    </message>
    <message>
        <source>all tracks; &quot;convert --audio&quot; chooses</source>
        <translation>すべてのトラック（ファイルの行で選択できます）</translation>
    </message>
    <message>
        <source>the source&apos;s codec</source>
        <translation>ソースのコーデック</translation>
    </message>
    <message>
        <source>the encoder&apos;s good quality</source>
        <translation>エンコーダーの高品質</translation>
    </message>
    <message>
        <source>plain stereo</source>
        <translation>通常のステレオ</translation>
    </message>
    <message>
        <source>the source&apos;s channels</source>
        <translation>ソースのチャンネル</translation>
    </message>
    <message>
        <source>the loudness stays as it is</source>
        <translation>音量はそのままです</translation>
    </message>
    <message>
        <source>a folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>folders are nested too deeply</source>
        <translation>フォルダーの階層が深すぎます</translation>
    </message>
    <message>
        <source>has no &quot;VideoEncoder&quot; or no &quot;FileFormat&quot;</source>
        <translation>「VideoEncoder」または「FileFormat」がありません</translation>
    </message>
    <message>
        <source>is one of more than %1</source>
        <translation>%L1件を超えています</translation>
    </message>
    <message>
        <source>the encoder&apos;s own value</source>
        <translation>エンコーダー自身の値</translation>
    </message>
</context>
<context>
    <name>HandBrakeLeftovers</name>
    <message>
        <source>the source&apos;s delays are kept</source>
        <translation>ソースの遅延は保たれます</translation>
    </message>
    <message>
        <source>parameters stand only at the file&apos;s start</source>
        <translation>パラメーターはファイルの先頭だけにあります</translation>
    </message>
    <message>
        <source>the source&apos;s tags are kept</source>
        <translation>ソースのタグは保たれます</translation>
    </message>
    <message>
        <source>the file isn&apos;t marked for the first iPods</source>
        <translation>初期のiPod用の印は付きません</translation>
    </message>
    <message>
        <source>small pictures stay small</source>
        <translation>小さい映像は小さいままです</translation>
    </message>
    <message>
        <source>colours aren&apos;t smoothed</source>
        <translation>色は平滑化されません</translation>
    </message>
    <message>
        <source>the source&apos;s colours are kept</source>
        <translation>ソースの色が保たれます</translation>
    </message>
    <message>
        <source>blocks aren&apos;t smoothed</source>
        <translation>ブロックは平滑化されません</translation>
    </message>
    <message>
        <source>sources that say they are interlaced are deinterlaced</source>
        <translation>インターレースと示されたソースは解除されます</translation>
    </message>
    <message>
        <source>noise isn&apos;t removed</source>
        <translation>ノイズは除去されません</translation>
    </message>
    <message>
        <source>telecine isn&apos;t undone</source>
        <translation>テレシネは解除されません</translation>
    </message>
    <message>
        <source>the source&apos;s pixel shape is used</source>
        <translation>ソースの画素の形が使われます</translation>
    </message>
    <message>
        <source>the picture isn&apos;t distorted</source>
        <translation>映像はゆがみません</translation>
    </message>
    <message>
        <source>square pixels in a picture of the same shape</source>
        <translation>同じ形の映像で正方形の画素</translation>
    </message>
    <message>
        <source>no borders are added</source>
        <translation>余白は加わりません</translation>
    </message>
    <message>
        <source>the picture isn&apos;t turned</source>
        <translation>映像は回転されません</translation>
    </message>
    <message>
        <source>the picture isn&apos;t sharpened</source>
        <translation>映像は鮮鋭化されません</translation>
    </message>
    <message>
        <source>the height follows from the picture&apos;s shape</source>
        <translation>高さは映像の形から決まります</translation>
    </message>
    <message>
        <source>the width follows from the picture&apos;s shape</source>
        <translation>幅は映像の形から決まります</translation>
    </message>
    <message>
        <source>closed captions aren&apos;t taken</source>
        <translation>クローズドキャプションは取り込まれません</translation>
    </message>
    <message>
        <source>&quot;convert --burn-subtitles&quot; chooses a track</source>
        <translation>焼き込むトラックはファイルの行で選びます</translation>
    </message>
    <message>
        <source>&quot;convert --subtitles&quot; chooses tracks</source>
        <translation>トラックはファイルの行で選びます</translation>
    </message>
    <message>
        <source>all that the format holds; &quot;convert --subtitles&quot; chooses</source>
        <translation>形式に入るものすべて（ファイルの行で選択できます）</translation>
    </message>
    <message>
        <source>the picture stays in colour</source>
        <translation>映像はカラーのままです</translation>
    </message>
    <message>
        <source>the encoder&apos;s own values</source>
        <translation>エンコーダー自身の値</translation>
    </message>
    <message>
        <source>nothing is cut off</source>
        <translation>何も切り取られません</translation>
    </message>
    <message>
        <source>black borders stay</source>
        <translation>黒い余白は残ります</translation>
    </message>
    <message>
        <source>isn&apos;t known</source>
        <translation>不明です</translation>
    </message>
</context>
<context>
    <name>Melt</name>
    <message>
        <source>isn&apos;t used</source>
        <translation>使われません</translation>
    </message>
    <message>
        <source>as many bits and colours as the codec keeps</source>
        <translation>コーデックが保てるだけのビット数と色</translation>
    </message>
    <message>
        <source>isn&apos;t used; the converter has a way of its own</source>
        <translation>使われません（変換機能が独自の方法で行います）</translation>
    </message>
    <message>
        <source>the encoder&apos;s good quality</source>
        <translation>エンコーダーの高品質</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>%L1行目</translation>
    </message>
</context>
<context>
    <name>PresetFile</name>
    <message>
        <source>&quot;%1&quot; is not a known key</source>
        <translation>「%1」は不明なキーです</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be an object</source>
        <translation>「%1」はオブジェクトである必要があります</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a text</source>
        <translation>「%1」は文字列である必要があります</translation>
    </message>
    <message>
        <source>&quot;settings.%1&quot; is not a known key</source>
        <translation>「settings.%1」は不明なキーです</translation>
    </message>
    <message>
        <source>&quot;settings.%1&quot; must be a text</source>
        <translation>「settings.%1」は文字列である必要があります</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>オブジェクトである必要があります</translation>
    </message>
    <message>
        <source>is one of more than %1</source>
        <translation>%L1件を超えています</translation>
    </message>
    <message>
        <source>%1: %2 at byte %3</source>
        <translation>%1: %2（%L3バイト目）</translation>
    </message>
    <message>
        <source>%1 has neither a list &quot;presets&quot; nor a list &quot;PresetList&quot;; it is no file of presets</source>
        <translation>%1には「presets」も「PresetList」もないため、プリセットのファイルではありません</translation>
    </message>
    <message>
        <source>%1 has the version %2, and only version %3 can be read; export it again with this version of vexconvert</source>
        <translation>%1のバージョンは%2ですが、読めるのはバージョン%3だけです。このバージョンのvexconvertで書き出し直してください</translation>
    </message>
    <message>
        <source>%1 is no file of presets of vexconvert, HandBrake, Kdenlive or Shotcut</source>
        <translation>%1はvexconvert、HandBrake、Kdenlive、Shotcutのプリセットファイルではありません</translation>
    </message>
</context>
<context>
    <name>PresetImport</name>
    <message>
        <source>its title must have 1 to %1 characters that can be seen</source>
        <translation>タイトルは表示できる1～%L1文字である必要があります</translation>
    </message>
    <message>
        <source>its note is longer than %1 characters</source>
        <translation>メモが%L1文字を超えています</translation>
    </message>
    <message>
        <source>&quot;%1&quot; isn&apos;t possible for %2</source>
        <translation>%2に「%1」は使えません</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written into .%2 files</source>
        <translation>%1は.%2ファイルに書き出せません</translation>
    </message>
    <message>
        <source>no format here writes video into .%1 files</source>
        <translation>.%1ファイルに映像を書き出す形式がありません</translation>
    </message>
    <message>
        <source>no format here writes audio alone into .%1 files</source>
        <translation>.%1ファイルに音声だけを書き出す形式がありません</translation>
    </message>
    <message>
        <source>its base %1 isn&apos;t in this catalogue; %2 stands in for it</source>
        <translation>元の%1はこのカタログにないため、%2が代わりになります</translation>
    </message>
    <message>
        <source>nothing is imported, as %1 of %2 presets are refused; leave them out with --skip-refused</source>
        <translation>%2件中%1件のプリセットが拒否されたため、何も読み込みません。--skip-refusedで除外できます</translation>
    </message>
    <message>
        <source>preset %1 isn&apos;t yours; only your own can be exported</source>
        <translation>プリセット%1はユーザーのものではありません。書き出せるのはユーザーのものだけです</translation>
    </message>
</context>
<context>
    <name>ConfigList</name>
    <message>
        <source>%1 is no file; name another one</source>
        <translation>%1はファイルではありません。別のものを選んでください</translation>
    </message>
    <message>
        <source>there is no file %1; check its name</source>
        <translation>ファイル%1がありません。名前を確認してください</translation>
    </message>
    <message>
        <source>%1 has %2, and no more than %3 are read</source>
        <translation>%1は%2ですが、%3までしか読めません</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read (%2); check its permissions</source>
        <translation>%1を読めません（%2）。アクセス権を確認してください</translation>
    </message>
</context>
<context>
    <name>PresetHistory</name>
    <message>
        <source>added &quot;%1&quot; (%2)</source>
        <translation>「%1」（%2）を追加</translation>
    </message>
    <message>
        <source>deleted &quot;%1&quot; (%2)</source>
        <translation>「%1」（%2）を削除</translation>
    </message>
    <message>
        <source>changed &quot;%1&quot; (%2)</source>
        <translation>「%1」（%2）を変更</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>ほか%L1件</translation>
    </message>
    <message>
        <source>there is nothing to undo</source>
        <translation>元に戻すものはありません</translation>
    </message>
    <message>
        <source>what was done last (%1) can&apos;t be undone: another program has changed these presets since</source>
        <translation>最後の操作（%1）は元に戻せません。別のプログラムがその後これらのプリセットを変更しました</translation>
    </message>
</context>
</TS>
