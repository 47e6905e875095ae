<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Vex</name>
    <message>
        <source>Convert all to</source>
        <translation>全部转换为</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>格式</translation>
    </message>
    <message>
        <source>recently</source>
        <translation>最近使用</translation>
    </message>
    <message>
        <source>video</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>audio</source>
        <translation>音频</translation>
    </message>
    <message>
        <source>device</source>
        <translation>设备</translation>
    </message>
    <message>
        <source>socialVideo</source>
        <translation>网络视频</translation>
    </message>
    <message>
        <source>Format search</source>
        <translation>搜索格式</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>暂无数据</translation>
    </message>
    <message>
        <source>Keep Orignal</source>
        <translation>与源文件相同</translation>
    </message>
    <message>
        <source>Smart Fit</source>
        <translation>智能匹配</translation>
    </message>
    <message>
        <source>The selected format cannot be deleted because it is in use.</source>
        <translation>所选格式正在使用中，无法删除。</translation>
    </message>
    <message>
        <source>The format you searched for was not found</source>
        <translation>未找到您搜索的格式</translation>
    </message>
    <message>
        <source>Preference</source>
        <translation>参数设置</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>custom</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>custom preset</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>, </source>
        <translation>，</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>质量</translation>
    </message>
    <message>
        <source>High Quality</source>
        <translation>高质量</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>Low Quality</source>
        <translation>低质量</translation>
    </message>
    <message>
        <source>Middle Quality</source>
        <translation>中等质量</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音频</translation>
    </message>
    <message>
        <source>Encoder</source>
        <translation>编码器</translation>
    </message>
    <message>
        <source>Frame Rate</source>
        <translation>帧率</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>分辨率</translation>
    </message>
    <message>
        <source>Bitrate</source>
        <translation>比特率</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>声道</translation>
    </message>
    <message>
        <source>Sample Rate</source>
        <translation>采样率</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>创建</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Converter</source>
        <translation>转换</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Add files</source>
        <translation>添加文件</translation>
    </message>
    <message>
        <source>Choose folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Drop video or audio files here</source>
        <translation>将视频或音频文件拖放到此处</translation>
    </message>
    <message>
        <source>Then choose a format and press Convert All</source>
        <translation>然后选择格式并点击“全部转换”</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>转换</translation>
    </message>
    <message>
        <source>Convert All</source>
        <translation>全部转换</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Stop All</source>
        <translation>全部停止</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Remove from the list</source>
        <translation>从列表中移除</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>在文件夹中显示</translation>
    </message>
    <message>
        <source>Same folder as the source</source>
        <translation>与源文件相同的文件夹</translation>
    </message>
    <message>
        <source>Save to</source>
        <translation>保存到</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>End</source>
        <translation>结束</translation>
    </message>
    <message>
        <source>Reading …</source>
        <translation>正在读取…</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>Converting …</source>
        <translation>正在转换…</translation>
    </message>
    <message>
        <source>Converted</source>
        <translation>已转换</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>剩余 %1</translation>
    </message>
    <message>
        <source>The window can&apos;t be made</source>
        <translation>无法创建窗口</translation>
    </message>
    <message>
        <source>Same as source</source>
        <translation>与源文件相同</translation>
    </message>
    <message>
        <source>Voice</source>
        <translation>语音</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>无损</translation>
    </message>
    <message>
        <source>CD Quality</source>
        <translation>CD 音质</translation>
    </message>
    <message>
        <source>32 bit float</source>
        <translation>32 位浮点</translation>
    </message>
    <message>
        <source>32 bit</source>
        <translation>32 位</translation>
    </message>
    <message>
        <source>24 bit</source>
        <translation>24 位</translation>
    </message>
    <message>
        <source>16 bit</source>
        <translation>16 位</translation>
    </message>
    <message>
        <source>Surround 5.1</source>
        <translation>5.1 环绕声</translation>
    </message>
    <message>
        <source>Wideband</source>
        <translation>宽带</translation>
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
        <translation>4K 电视</translation>
    </message>
    <message>
        <source>4K TV MKV</source>
        <translation>4K 电视 MKV</translation>
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
        <translation>短片竖屏 HD 1080P</translation>
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
        <translation>全高清电视</translation>
    </message>
    <message>
        <source>Full HD TV TS</source>
        <translation>全高清电视 TS</translation>
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
        <translation>高清电视</translation>
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
        <translation>竖屏 4:5</translation>
    </message>
    <message>
        <source>Portrait 4K</source>
        <translation>竖屏 4K</translation>
    </message>
    <message>
        <source>Portrait HD 1080P</source>
        <translation>竖屏 HD 1080P</translation>
    </message>
    <message>
        <source>Portrait HD 1200P</source>
        <translation>竖屏 HD 1200P</translation>
    </message>
    <message>
        <source>Portrait HD 720P</source>
        <translation>竖屏 HD 720P</translation>
    </message>
    <message>
        <source>Portrait SD 540P</source>
        <translation>竖屏 SD 540P</translation>
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
        <translation>智能电视 4K</translation>
    </message>
    <message>
        <source>Smart TV HD 1080P</source>
        <translation>智能电视 HD 1080P</translation>
    </message>
    <message>
        <source>Smart TV HD 720P</source>
        <translation>智能电视 HD 720P</translation>
    </message>
    <message>
        <source>Square HD 1080P</source>
        <translation>方形 HD 1080P</translation>
    </message>
    <message>
        <source>Square HD 720P</source>
        <translation>方形 HD 720P</translation>
    </message>
    <message>
        <source>Story HD 1080P</source>
        <translation>快拍 HD 1080P</translation>
    </message>
    <message>
        <source>TV Box 4K</source>
        <translation>电视盒子 4K</translation>
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
        <translation>视频和音频文件</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>所有文件</translation>
    </message>
    <message>
        <source>There are no video or audio files in the folder %1; add the files themselves</source>
        <translation>文件夹 %1 中没有视频或音频文件；请直接添加文件</translation>
    </message>
    <message>
        <source>No file manager could be started to show the folder %1; open it by hand</source>
        <translation>无法启动文件管理器来显示文件夹 %1；请手动打开</translation>
    </message>
    <message>
        <source>VexConvert can&apos;t open its window</source>
        <translation>VexConvert 无法打开窗口</translation>
    </message>
    <message>
        <source>%1 is the earliest possible time</source>
        <translation>最早可用时间是 %1</translation>
    </message>
    <message>
        <source>%1 is the latest possible time</source>
        <translation>最晚可用时间是 %1</translation>
    </message>
    <message>
        <source>For both pages; each can have its own settings below its list</source>
        <translation>适用于两个页面；每个页面可在其列表下方单独设置</translation>
    </message>
    <message>
        <source>This folder isn&apos;t there; choose another one</source>
        <translation>此文件夹不存在；请选择其他文件夹</translation>
    </message>
    <message>
        <source>A name has no &quot;/&quot;; choose the folder in &quot;Save to&quot;</source>
        <translation>名称中不能有“/”；请在“保存到”中选择文件夹</translation>
    </message>
    <message>
        <source>About VexConvert</source>
        <translation>关于 VexConvert</translation>
    </message>
    <message>
        <source>Add a number</source>
        <translation>添加编号</translation>
    </message>
    <message>
        <source>Add folder</source>
        <translation>添加文件夹</translation>
    </message>
    <message>
        <source>As many as suit this machine</source>
        <translation>适合本机的数量</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>跟随桌面</translation>
    </message>
    <message>
        <source>Ask</source>
        <translation>询问</translation>
    </message>
    <message>
        <source>Conversions at once</source>
        <translation>同时转换数</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Cut in the editor</source>
        <translation>在编辑器中剪辑</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>For example %1</source>
        <translation>例如：%1</translation>
    </message>
    <message>
        <source>Holidays</source>
        <translation>假期</translation>
    </message>
    <message>
        <source>If a name is in use</source>
        <translation>名称已被使用时</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>两者都保留</translation>
    </message>
    <message>
        <source>Language (from the next start)</source>
        <translation>语言（下次启动时生效）</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Make the subfolders of an added folder, too</source>
        <translation>同时创建所添加文件夹的子文件夹</translation>
    </message>
    <message>
        <source>Names</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Names in use</source>
        <translation>名称已被使用</translation>
    </message>
    <message>
        <source>Names of the results</source>
        <translation>结果的名称</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>首选项</translation>
    </message>
    <message>
        <source>Qt is under the LGPL 3, ffmpeg under the LGPL or the GPL.</source>
        <translation>Qt 采用 LGPL 3，ffmpeg 采用 LGPL 或 GPL。</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>替换</translation>
    </message>
    <message>
        <source>Replace the file</source>
        <translation>替换文件</translation>
    </message>
    <message>
        <source>Show log</source>
        <translation>显示日志</translation>
    </message>
    <message>
        <source>Estimate sizes from short samples</source>
        <translation>用短样本估算大小</translation>
    </message>
    <message>
        <source>Show no animations</source>
        <translation>不显示动画</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>跳过</translation>
    </message>
    <message>
        <source>Skip the file</source>
        <translation>跳过文件</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>There is no field {%1}; use %2</source>
        <translation>没有字段 {%1}；可使用 %2</translation>
    </message>
    <message>
        <source>These are replaced: %1</source>
        <translation>以下内容会被替换：%1</translation>
    </message>
    <message>
        <source>These files already exist:</source>
        <translation>以下文件已存在：</translation>
    </message>
    <message>
        <source>VexConvert is free software under the MIT licence.</source>
        <translation>VexConvert 是采用 MIT 许可的自由软件。</translation>
    </message>
    <message>
        <source>Write a time such as 1:02:03.5</source>
        <translation>请输入时间，例如 1:02:03.5</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>以及另外 %1 个</translation>
    </message>
    <message>
        <source>ffmpeg hasn&apos;t run for this file yet</source>
        <translation>ffmpeg 尚未处理此文件</translation>
    </message>
    <message>
        <source>was there already</source>
        <translation>已存在</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1：</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Tell me when all files are converted</source>
        <translation>所有文件转换完成后通知我</translation>
    </message>
    <message>
        <source>%1 % smaller</source>
        <translation>减小 %1%</translation>
    </message>
    <message>
        <source>%1 % larger</source>
        <translation>增大 %1%</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1/%2</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>%1 is a picture; add video or audio files</source>
        <translation>%1 是图片；请添加视频或音频文件</translation>
    </message>
    <message>
        <source>%1 is a playlist; add the files that it names instead</source>
        <translation>%1 是播放列表；请改为添加其中的文件</translation>
    </message>
    <message>
        <source>%1 is not on this computer; download it first and add the file</source>
        <translation>%1 不在此计算机上；请先下载，再添加文件</translation>
    </message>
    <message>
        <source>There is no file %1 any more; convert it again</source>
        <translation>文件 %1 已不存在；请重新转换</translation>
    </message>
    <message>
        <source>No player could be started for %1; open it by hand</source>
        <translation>无法为 %1 启动播放器；请手动打开</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 个文件</translation>
    </message>
    <message>
        <source>Already in the list: %1</source>
        <translation>已在列表中：%1</translation>
    </message>
    <message>
        <source>Add again</source>
        <translation>再次添加</translation>
    </message>
    <message>
        <source>Removed: %1</source>
        <translation>已移除：%1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Converted already: %1</source>
        <translation>已转换：%1</translation>
    </message>
    <message>
        <source>Convert again</source>
        <translation>再次转换</translation>
    </message>
    <message>
        <source>VexConvert was closed while it converted; Convert All goes on with what is left</source>
        <translation>VexConvert 在转换时被关闭；“全部转换”会继续其余的文件</translation>
    </message>
    <message>
        <source>about %1</source>
        <translation>约 %1</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>最多 %1</translation>
    </message>
    <message>
        <source>Files converted: %1</source>
        <translation>已转换的文件：%1</translation>
    </message>
    <message>
        <source>failed: %1</source>
        <translation>失败：%1</translation>
    </message>
    <message>
        <source>Interrupted</source>
        <translation>已中断</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>排序方式</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Choose a format …</source>
        <translation>选择格式…</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>回车</translation>
    </message>
    <message>
        <source>Follow “Convert all to”</source>
        <translation>跟随“全部转换为”</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>全选</translation>
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
        <translation>已选择 %1/%2</translation>
    </message>
    <message>
        <source>Files: %1</source>
        <translation>文件：%1</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Clear converted</source>
        <translation>移除已转换的</translation>
    </message>
    <message>
        <source>Stop converting?</source>
        <translation>停止转换？</translation>
    </message>
    <message>
        <source>The list is kept: you can convert the rest the next time.</source>
        <translation>列表会保留：下次可以转换其余的文件。</translation>
    </message>
    <message>
        <source>Stop and close</source>
        <translation>停止并关闭</translation>
    </message>
    <message>
        <source>Keep converting</source>
        <translation>继续转换</translation>
    </message>
    <message>
        <source>Use %1</source>
        <translation>使用“%1”</translation>
    </message>
    <message>
        <source>Audio tracks</source>
        <translation>音轨</translation>
    </message>
    <message>
        <source>Subtitles</source>
        <translation>字幕</translation>
    </message>
    <message>
        <source>No audio tracks or subtitles</source>
        <translation>没有音轨或字幕</translation>
    </message>
    <message>
        <source>Default track</source>
        <translation>默认轨道</translation>
    </message>
    <message>
        <source>Default track: %1</source>
        <translation>默认轨道：%1</translation>
    </message>
    <message>
        <source>Burn in</source>
        <translation>烧录</translation>
    </message>
    <message>
        <source>Burn in: %1</source>
        <translation>烧录：%1</translation>
    </message>
    <message>
        <source>Draws these subtitles onto the picture</source>
        <translation>把此字幕绘制到画面上</translation>
    </message>
    <message>
        <source>Show tracks</source>
        <translation>显示轨道</translation>
    </message>
    <message>
        <source>Hide tracks</source>
        <translation>隐藏轨道</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>空格</translation>
    </message>
    <message>
        <source>not in .%1</source>
        <translation>.%1 不支持</translation>
    </message>
    <message>
        <source>forced</source>
        <translation>强制</translation>
    </message>
    <message>
        <source>%1 channels</source>
        <translation>%1 声道</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Found by: %1</source>
        <translation>匹配：%1</translation>
    </message>
    <message>
        <source>Can’t be used: %1</source>
        <translation>无法使用：%1</translation>
    </message>
    <message>
        <source>Remove from the favorites</source>
        <translation>从收藏中移除</translation>
    </message>
    <message>
        <source>Add to the favorites</source>
        <translation>添加到收藏</translation>
    </message>
    <message>
        <source>More about %1</source>
        <translation>%1 的更多操作</translation>
    </message>
    <message>
        <source>Find a preset</source>
        <translation>查找预设</translation>
    </message>
    <message>
        <source>Find a preset (Ctrl+F)</source>
        <translation>查找预设 (Ctrl+F)</translation>
    </message>
    <message>
        <source>Import or export presets</source>
        <translation>导入或导出预设</translation>
    </message>
    <message>
        <source>Import presets …</source>
        <translation>导入预设…</translation>
    </message>
    <message>
        <source>Import presets</source>
        <translation>导入预设</translation>
    </message>
    <message>
        <source>Export presets</source>
        <translation>导出预设</translation>
    </message>
    <message>
        <source>Export all my presets …</source>
        <translation>导出我的全部预设…</translation>
    </message>
    <message>
        <source>For the selected files: %1</source>
        <translation>用于所选文件：%1</translation>
    </message>
    <message>
        <source>For all files</source>
        <translation>用于所有文件</translation>
    </message>
    <message>
        <source>Presets: %1</source>
        <translation>预设：%1</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>备注</translation>
    </message>
    <message>
        <source>Note …</source>
        <translation>备注…</translation>
    </message>
    <message>
        <source>Use this preset</source>
        <translation>使用此预设</translation>
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
        <translation>创建副本</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>重命名</translation>
    </message>
    <message>
        <source>What has been changed …</source>
        <translation>更改内容…</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上移</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下移</translation>
    </message>
    <message>
        <source>Default on the command line for</source>
        <translation>设为命令行默认预设</translation>
    </message>
    <message>
        <source>Videos</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>音频文件</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Export …</source>
        <translation>导出…</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>My presets</source>
        <translation>我的预设</translation>
    </message>
    <message>
        <source>Try 10 seconds</source>
        <translation>试转换 10 秒</translation>
    </message>
    <message>
        <source>Changes in “%1”</source>
        <translation>“%1”的更改</translation>
    </message>
    <message>
        <source>It isn’t known what this preset was made from.</source>
        <translation>不知道此预设由何而来。</translation>
    </message>
    <message>
        <source>None: all values are those of %1.</source>
        <translation>没有更改：所有值都与 %1 相同。</translation>
    </message>
    <message>
        <source>It was made from %1, with these changes:</source>
        <translation>由 %1 制成，更改如下：</translation>
    </message>
    <message>
        <source>Take back</source>
        <translation>还原</translation>
    </message>
    <message>
        <source>Take all back</source>
        <translation>全部还原</translation>
    </message>
    <message>
        <source>new</source>
        <translation>新</translation>
    </message>
    <message>
        <source>already there</source>
        <translation>已有</translation>
    </message>
    <message>
        <source>another one is there</source>
        <translation>已有另一个</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>已拒绝</translation>
    </message>
    <message>
        <source>If you have another one of this title and format</source>
        <translation>如果已有相同标题和格式的预设</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Trying 10 seconds of %1 …</source>
        <translation>正在试转换 %1 的 10 秒…</translation>
    </message>
    <message>
        <source>All of %1 would be about %2.</source>
        <translation>%1 全部约为 %2。</translation>
    </message>
    <message>
        <source>Play again</source>
        <translation>再次播放</translation>
    </message>
    <message>
        <source>%1 (copy)</source>
        <translation>%1（副本）</translation>
    </message>
    <message>
        <source>a preset that is no longer there</source>
        <translation>已不存在的预设</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>已撤销：%1</translation>
    </message>
    <message>
        <source>%1 presets</source>
        <translation>%1 个预设</translation>
    </message>
    <message>
        <source>Presets changed: %1</source>
        <translation>已更改预设：%1</translation>
    </message>
    <message>
        <source>Changed: %1</source>
        <translation>已更改：%1</translation>
    </message>
    <message>
        <source>Deleted: %1</source>
        <translation>已删除：%1</translation>
    </message>
    <message>
        <source>The temporary folder can’t be written (%1); check the disk</source>
        <translation>无法写入临时文件夹（%1）；请检查磁盘</translation>
    </message>
    <message>
        <source>good for “%1”</source>
        <translation>适合“%1”</translation>
    </message>
    <message>
        <source>Type a device, a site, a codec, a size or a purpose, such as “iphone 1080” or “small”.</source>
        <translation>输入设备、网站、编解码器、尺寸或用途，例如“iphone 1080”或“小”。</translation>
    </message>
    <message>
        <source>No preset has all of this; leave out a word or a filter.</source>
        <translation>没有符合全部条件的预设；请去掉一个词或筛选。</translation>
    </message>
    <message>
        <source>No preset is known for “%1”.</source>
        <translation>没有与“%1”相关的预设。</translation>
    </message>
    <message>
        <source>Favorites</source>
        <translation>收藏</translation>
    </message>
    <message>
        <source>Recently used</source>
        <translation>最近使用</translation>
    </message>
    <message>
        <source>mono</source>
        <translation>单声道</translation>
    </message>
    <message>
        <source>stereo</source>
        <translation>立体声</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>You have no presets of your own yet.</source>
        <translation>您还没有自己的预设。</translation>
    </message>
    <message>
        <source>Exported: %1</source>
        <translation>已导出：%1</translation>
    </message>
    <message>
        <source>%1 can’t be written (%2); choose another folder</source>
        <translation>无法写入 %1（%2）；请选择其他文件夹</translation>
    </message>
    <message>
        <source>Presets imported: %1</source>
        <translation>已导入预设：%1</translation>
    </message>
    <message>
        <source>Files of presets</source>
        <translation>预设文件</translation>
    </message>
    <message>
        <source>approximated</source>
        <translation>近似</translation>
    </message>
    <message>
        <source>lost</source>
        <translation>丢失</translation>
    </message>
    <message>
        <source>No preset was imported.</source>
        <translation>没有导入任何预设。</translation>
    </message>
    <message>
        <source>no file yet</source>
        <translation>还没有文件</translation>
    </message>
</context>
<context>
    <name>OutputStreams</name>
    <message>
        <source>has no video; choose an audio preset</source>
        <translation>没有视频；请选择音频预设</translation>
    </message>
    <message>
        <source>has no audio; choose a video preset</source>
        <translation>没有声音；请选择视频预设</translation>
    </message>
    <message>
        <source>a .%1 file can&apos;t hold video; choose an audio preset</source>
        <translation>.%1 文件不能包含视频；请选择音频预设</translation>
    </message>
    <message>
        <source>is a single picture and makes no film; on the command line, --duration SECONDS shows it for so long</source>
        <translation>是单张图片，不能成为影片；可在命令行用 --duration SECONDS 指定显示秒数</translation>
    </message>
    <message>
        <source>has %1 audio tracks, so no number %2; choose another one</source>
        <translation>有 %1 条音轨，没有第 %2 条；请选择其他音轨</translation>
    </message>
    <message>
        <source>none of its audio tracks is kept; keep one</source>
        <translation>没有保留任何音轨；请保留一条</translation>
    </message>
</context>
<context>
    <name>EncoderChoice</name>
    <message>
        <source>needs the encoder %1 for %2, which this ffmpeg lacks; choose a preset with another encoder or install an ffmpeg that has it</source>
        <translation>%2 需要编码器 %1，但此 ffmpeg 没有；请选择使用其他编码器的预设，或安装带有它的 ffmpeg</translation>
    </message>
    <message>
        <source> or </source>
        <translation> 或 </translation>
    </message>
</context>
<context>
    <name>RateControl</name>
    <message>
        <source>says no length, so that no bitrate gives it the asked size; choose a bitrate instead</source>
        <translation>没有说明时长，因此无法确定达到指定大小的比特率；请改为选择比特率</translation>
    </message>
    <message>
        <source>is too long for the asked size; choose a larger size or less audio</source>
        <translation>对于指定的大小来说太长；请选择更大的大小或更少的音频</translation>
    </message>
</context>
<context>
    <name>EncoderList</name>
    <message>
        <source>%1 doesn&apos;t list its encoders (%2); check that &quot;%1 -encoders&quot; works, or install another ffmpeg</source>
        <translation>%1 未列出其编码器（%2）；请检查“%1 -encoders”能否列出它们，或安装其他 ffmpeg</translation>
    </message>
</context>
<context>
    <name>Conversion</name>
    <message>
        <source>the disk with %1 is full; free some space or choose another folder</source>
        <translation>%1 所在的磁盘已满；请释放空间或选择其他文件夹</translation>
    </message>
    <message>
        <source>ffmpeg couldn&apos;t convert it (%1); check the file or try another preset</source>
        <translation>ffmpeg 无法转换（%1）；请检查文件或尝试其他预设</translation>
    </message>
    <message>
        <source>ffmpeg wrote a file that can&apos;t be played; try another preset</source>
        <translation>ffmpeg 写出的文件无法播放；请尝试其他预设</translation>
    </message>
    <message>
        <source>holds %1 of %2 s: the source ends early or is damaged</source>
        <translation>%2 秒中只有 %1 秒：源文件提前结束或已损坏</translation>
    </message>
    <message>
        <source>its video is HDR, and this ffmpeg can&apos;t map that to ordinary colours; install an ffmpeg with zscale and tonemap</source>
        <translation>视频为 HDR，此 ffmpeg 无法将其转换为普通色彩；请安装带有 zscale 和 tonemap 的 ffmpeg</translation>
    </message>
    <message>
        <source>the encoder refuses these settings</source>
        <translation>编码器不接受这些设置</translation>
    </message>
    <message>
        <source>this kind of file can&apos;t hold one of the streams</source>
        <translation>此类文件无法包含其中一条轨道</translation>
    </message>
    <message>
        <source>the source doesn&apos;t say when its frames are shown</source>
        <translation>源文件没有说明各帧的显示时间</translation>
    </message>
</context>
<context>
    <name>MediaInput</name>
    <message>
        <source>is a playlist; choose the files that it lists</source>
        <translation>是播放列表；请选择其中列出的文件</translation>
    </message>
    <message>
        <source>stands for an image sequence; rename it and its folders without any of % * ? [ ] { }</source>
        <translation>表示一组图片序列；请重命名文件及其文件夹，不要包含 % * ? [ ] { }</translation>
    </message>
    <message>
        <source>is of a kind that isn&apos;t converted (%1); choose a video or audio file</source>
        <translation>属于不支持转换的类型（%1）；请选择视频或音频文件</translation>
    </message>
</context>
<context>
    <name>MediaProbe</name>
    <message>
        <source>no such file; check its name</source>
        <translation>文件不存在；请检查文件名</translation>
    </message>
    <message>
        <source>this is a folder; name the files in it</source>
        <translation>这是文件夹；请选择其中的文件</translation>
    </message>
    <message>
        <source>cannot be read as media (%1); check that it is a complete video or audio file</source>
        <translation>无法作为媒体读取（%1）；请确认它是完整的视频或音频文件</translation>
    </message>
    <message>
        <source>holds neither video nor audio; choose a video or audio file</source>
        <translation>既没有视频也没有音频；请选择视频或音频文件</translation>
    </message>
    <message>
        <source>takes too long to read; check the disk or network that it is on</source>
        <translation>读取时间过长；请检查其所在的磁盘或网络</translation>
    </message>
    <message>
        <source>describes itself without end; check that it is a complete video or audio file</source>
        <translation>文件的描述信息没有尽头；请检查它是否是完整的视频或音频文件</translation>
    </message>
</context>
<context>
    <name>OutputSettings</name>
    <message>
        <source>files of the kind &quot;.%1&quot; can&apos;t be written; choose another preset</source>
        <translation>无法写入“.%1”类型的文件；请选择其他预设</translation>
    </message>
    <message>
        <source>no encoder has a name like &quot;%1&quot;; choose another preset</source>
        <translation>没有名为“%1”的编码器；请选择其他预设</translation>
    </message>
    <message>
        <source>the preset&apos;s %1 is %2; it must be 0 or %3; choose another preset</source>
        <translation>预设的 %1 为 %2；必须为 0 或 %3；请选择其他预设</translation>
    </message>
    <message>
        <source>not a valid number</source>
        <translation>无效的数字</translation>
    </message>
    <message>
        <source>the part to keep must begin at 0 or later and end after that; choose another part</source>
        <translation>保留的片段必须从 0 或之后开始，并在其后结束；请选择其他片段</translation>
    </message>
</context>
<context>
    <name>PendingFile</name>
    <message>
        <source>the folder %1 doesn&apos;t exist; make it or choose another one</source>
        <translation>文件夹 %1 不存在；请创建它或选择其他文件夹</translation>
    </message>
    <message>
        <source>can&apos;t write into the folder %1 (%2); choose another one</source>
        <translation>无法写入文件夹 %1（%2）；请选择其他文件夹</translation>
    </message>
    <message>
        <source>the result couldn&apos;t get its name in %1 (%2); choose another folder</source>
        <translation>无法在 %1 中为结果命名（%2）；请选择其他文件夹</translation>
    </message>
</context>
<context>
    <name>PresetStore</name>
    <message>
        <source>can&apos;t write into the configuration folder %1 (%2); check its disk and its permissions</source>
        <translation>无法写入配置文件夹 %1（%2）；请检查磁盘和权限</translation>
    </message>
    <message>
        <source>can&apos;t write %1, which is as before; check its disk and its permissions</source>
        <translation>无法写入 %1，文件保持原样；请检查磁盘和权限</translation>
    </message>
</context>
<context>
    <name>Tool</name>
    <message>
        <source>%1 is not on the PATH; install ffmpeg (Debian: apt-get install ffmpeg) and try again</source>
        <translation>PATH 中没有 %1；请安装 ffmpeg（Debian：apt-get install ffmpeg）后重试</translation>
    </message>
    <message>
        <source>%1 couldn&apos;t be started (%2); close other programs or raise your limits on open files and processes (ulimit -n, ulimit -u), and try again</source>
        <translation>无法启动 %1（%2）；请关闭其他程序，或提高打开文件数和进程数的限制（ulimit -n、ulimit -u），然后重试</translation>
    </message>
</context>
<context>
    <name>ToolRun</name>
    <message>
        <source>%1 stopped without saying why</source>
        <translation>%1 已停止，未说明原因</translation>
    </message>
    <message>
        <source>%1 took too long</source>
        <translation>%1 耗时过长</translation>
    </message>
    <message>
        <source>%1 printed too much</source>
        <translation>%1 的输出过多</translation>
    </message>
</context>
<context>
    <name>FolderLock</name>
    <message>
        <source>another program</source>
        <translation>另一个程序</translation>
    </message>
    <message>
        <source>%1 (process %2 on %3)</source>
        <translation>%1（%3 上的进程 %2）</translation>
    </message>
    <message>
        <source>can&apos;t write into the configuration folder %1 (%2); name another one</source>
        <translation>无法写入配置文件夹 %1（%2）；请指定其他文件夹</translation>
    </message>
    <message>
        <source>%1 is using the presets in %2; close it, or try again when it is done</source>
        <translation>%1 正在使用 %2 中的预设；请关闭它或在它结束后重试</translation>
    </message>
    <message>
        <source>%1 is no plain file; remove it</source>
        <translation>%1 不是普通文件；请删除它</translation>
    </message>
    <message>
        <source>waiting for %1, which is using the presets in %2</source>
        <translation>正在等待 %1，它正在使用 %2 中的预设</translation>
    </message>
</context>
<context>
    <name>UserFile</name>
    <message>
        <source>%1 is no file; move it away</source>
        <translation>%1 不是文件；请移走它</translation>
    </message>
    <message>
        <source>%1 has %2, and no more than %3 are read; move it away to start anew</source>
        <translation>%1 有 %2，最多只读取 %3；移走它即可重新开始</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read (%2); check its permissions</source>
        <translation>无法读取 %1（%2）；请检查权限</translation>
    </message>
    <message>
        <source>%1 is missing; put its last good copy, %2, in its place</source>
        <translation>缺少 %1；请用其最近的完好副本 %2 替换</translation>
    </message>
    <message>
        <source>%1 is damaged; put its last good copy, %2, in its place</source>
        <translation>%1 已损坏；请用其最近的完好副本 %2 替换</translation>
    </message>
    <message>
        <source>%1 is empty and there is no good copy of it; remove it to start anew</source>
        <translation>%1 是空的且没有完好的副本；删除它即可重新开始</translation>
    </message>
    <message>
        <source>%1 is damaged and there is no good copy of it; fix it, or move it away to start anew</source>
        <translation>%1 已损坏且没有完好的副本；请修复它，或移走它以重新开始</translation>
    </message>
    <message>
        <source>%1 was empty and there is no good copy of it</source>
        <translation>%1 是空的且没有完好的副本</translation>
    </message>
    <message>
        <source>%1 was damaged and there is no good copy of it; it is kept as %2</source>
        <translation>%1 已损坏且没有完好的副本；它保存为 %2</translation>
    </message>
    <message>
        <source>%1 was damaged; its last good copy, %2, is in its place, and the damaged file is kept as %3</source>
        <translation>%1 已损坏；已恢复其最近的完好副本 %2，损坏的文件保存为 %3</translation>
    </message>
    <message>
        <source>%1 was missing; its last good copy, %2, is in its place</source>
        <translation>缺少 %1；已恢复其最近的完好副本 %2</translation>
    </message>
    <message>
        <source>%1 was missing and its copy, %2, is damaged</source>
        <translation>缺少 %1，且其副本 %2 已损坏</translation>
    </message>
    <message>
        <source>%1 was empty; its last good copy, %2, is in its place</source>
        <translation>%1 是空的；已恢复其最近的完好副本 %2</translation>
    </message>
    <message>
        <source>can&apos;t write %1 (%2), which is as before; check its disk and its permissions</source>
        <translation>无法写入 %1（%2），文件保持原样；请检查磁盘和权限</translation>
    </message>
    <message>
        <source>can&apos;t keep the unusable presets of %1 in %2 (%3); check its disk and its permissions</source>
        <translation>无法将 %1 中不可用的预设保存到 %2（%3）；请检查磁盘和权限</translation>
    </message>
    <message>
        <source>%1 holds presets without settings (&quot;outPutNode&quot;), which can&apos;t be used; they are kept in %2</source>
        <translation>%1 含有缺少设置（&quot;outPutNode&quot;）而无法使用的预设；它们保存在 %2 中</translation>
    </message>
</context>
<context>
    <name>Losses</name>
    <message>
        <source>left out: %1</source>
        <translation>未包含：%1</translation>
    </message>
    <message>
        <source>%1 of %2 audio tracks (.%3 holds %4, .%5 holds all)</source>
        <translation>%2 条音轨中的 %1 条（.%3 可存 %4 条，.%5 可存全部）</translation>
    </message>
    <message>
        <source>subtitle tracks: %1 (%2; .%3 doesn&apos;t hold them, .%4 does)</source>
        <translation>字幕轨：%1（%2；.%3 不支持，.%4 支持）</translation>
    </message>
    <message>
        <source>subtitle tracks: %1 (%2; no format holds them)</source>
        <translation>字幕轨：%1（%2；没有格式支持）</translation>
    </message>
    <message>
        <source>subtitle tracks: %1 (%2; they can&apos;t be written into this .%3)</source>
        <translation>字幕轨：%1（%2；无法写入此 .%3）</translation>
    </message>
    <message>
        <source>more video tracks: %1 (a result has one)</source>
        <translation>其他视频轨：%1（结果只有一条）</translation>
    </message>
    <message>
        <source>attachments: %1 (.%2 doesn&apos;t hold them, .mkv does)</source>
        <translation>附件：%1（.%2 不支持，.mkv 支持）</translation>
    </message>
    <message>
        <source>chapters: %1 (.%2 doesn&apos;t hold them, .%3 does)</source>
        <translation>章节：%1（.%2 不支持，.%3 支持）</translation>
    </message>
    <message>
        <source>the cover (.%1 doesn&apos;t hold it, .%2 does)</source>
        <translation>封面（.%1 不支持，.%2 支持）</translation>
    </message>
</context>
<context>
    <name>SubtitlePlan</name>
    <message>
        <source>has %1 subtitle tracks, so no number %2; choose another one</source>
        <translation>有 %1 条字幕轨，没有第 %2 条；请选择其他字幕轨</translation>
    </message>
</context>
<context>
    <name>KeptQueue</name>
    <message>
        <source>it is of a newer version of the program</source>
        <translation>它来自较新版本的程序</translation>
    </message>
    <message>
        <source>it holds no list of files</source>
        <translation>其中没有文件列表</translation>
    </message>
    <message>
        <source>The list of files of the last time can&apos;t be read (%1); it is now %2, and the window starts empty</source>
        <translation>无法读取上次的文件列表（%1）；它现在是 %2，窗口从空列表开始</translation>
    </message>
    <message>
        <source>The list of files of the last time can&apos;t be read (%1); remove %2 to let a new one be kept</source>
        <translation>无法读取上次的文件列表（%1）；请删除 %2 以便保存新列表</translation>
    </message>
    <message>
        <source>The list of files can&apos;t be kept in %1 (%2); free some space or check the folder&apos;s permissions</source>
        <translation>无法将文件列表保存在 %1（%2）；请释放空间或检查文件夹权限</translation>
    </message>
</context>
<context>
    <name>CodecWords</name>
    <message>
        <source>more than 8 bits only where the source has them</source>
        <translation>只有源文件超过 8 位时才超过 8 位</translation>
    </message>
    <message>
        <source>%1 is written without the graphics card</source>
        <translation>%1 不使用显卡写入</translation>
    </message>
    <message>
        <source>audio of another codec is encoded</source>
        <translation>其他编解码器的音频会重新编码</translation>
    </message>
    <message>
        <source>AAC without its high-efficiency extension</source>
        <translation>不带高效扩展的 AAC</translation>
    </message>
    <message>
        <source>the encoder&apos;s usual speed</source>
        <translation>编码器的常用速度</translation>
    </message>
    <message>
        <source>%1 isn&apos;t tuned so</source>
        <translation>%1 没有这种调整</translation>
    </message>
    <message>
        <source>the encoder chooses the profile</source>
        <translation>由编码器选择配置</translation>
    </message>
    <message>
        <source>the encoder chooses the level</source>
        <translation>由编码器选择级别</translation>
    </message>
    <message>
        <source>the encoder chooses the key frames</source>
        <translation>由编码器选择关键帧</translation>
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
        <translation>相同的数值用于另一个编码器</translation>
    </message>
    <message>
        <source>the average bitrate is reached in one pass</source>
        <translation>一次编码即达到平均比特率</translation>
    </message>
    <message>
        <source>a variable rate stays variable where the format has it</source>
        <translation>格式支持时，可变帧率保持可变</translation>
    </message>
    <message>
        <source>the rate is a limit; slower sources keep theirs</source>
        <translation>帧率是上限；较慢的源保持原帧率</translation>
    </message>
    <message>
        <source>each source&apos;s track is written once</source>
        <translation>源的每条轨道只写一次</translation>
    </message>
    <message>
        <source>all tracks; &quot;convert --audio&quot; chooses</source>
        <translation>全部轨道；可在文件所在行选择</translation>
    </message>
    <message>
        <source>the source&apos;s codec</source>
        <translation>源的编解码器</translation>
    </message>
    <message>
        <source>the encoder&apos;s good quality</source>
        <translation>编码器的良好质量</translation>
    </message>
    <message>
        <source>plain stereo</source>
        <translation>普通立体声</translation>
    </message>
    <message>
        <source>the source&apos;s channels</source>
        <translation>源的声道</translation>
    </message>
    <message>
        <source>the loudness stays as it is</source>
        <translation>响度保持不变</translation>
    </message>
    <message>
        <source>a folder</source>
        <translation>一个文件夹</translation>
    </message>
    <message>
        <source>folders are nested too deeply</source>
        <translation>文件夹嵌套过深</translation>
    </message>
    <message>
        <source>has no &quot;VideoEncoder&quot; or no &quot;FileFormat&quot;</source>
        <translation>缺少“VideoEncoder”或“FileFormat”</translation>
    </message>
    <message>
        <source>is one of more than %1</source>
        <translation>超过 %L1 个</translation>
    </message>
    <message>
        <source>the encoder&apos;s own value</source>
        <translation>编码器自己的值</translation>
    </message>
</context>
<context>
    <name>HandBrakeLeftovers</name>
    <message>
        <source>the source&apos;s delays are kept</source>
        <translation>保留源的延迟</translation>
    </message>
    <message>
        <source>parameters stand only at the file&apos;s start</source>
        <translation>参数只在文件开头</translation>
    </message>
    <message>
        <source>the source&apos;s tags are kept</source>
        <translation>保留源的标签</translation>
    </message>
    <message>
        <source>the file isn&apos;t marked for the first iPods</source>
        <translation>不会为最早的 iPod 作标记</translation>
    </message>
    <message>
        <source>small pictures stay small</source>
        <translation>小画面保持原大小</translation>
    </message>
    <message>
        <source>colours aren&apos;t smoothed</source>
        <translation>不平滑颜色</translation>
    </message>
    <message>
        <source>the source&apos;s colours are kept</source>
        <translation>保留源的颜色</translation>
    </message>
    <message>
        <source>blocks aren&apos;t smoothed</source>
        <translation>不平滑块效应</translation>
    </message>
    <message>
        <source>sources that say they are interlaced are deinterlaced</source>
        <translation>标明隔行的源会去隔行</translation>
    </message>
    <message>
        <source>noise isn&apos;t removed</source>
        <translation>不去除噪点</translation>
    </message>
    <message>
        <source>telecine isn&apos;t undone</source>
        <translation>不还原胶片过带</translation>
    </message>
    <message>
        <source>the source&apos;s pixel shape is used</source>
        <translation>使用源的像素形状</translation>
    </message>
    <message>
        <source>the picture isn&apos;t distorted</source>
        <translation>画面不变形</translation>
    </message>
    <message>
        <source>square pixels in a picture of the same shape</source>
        <translation>相同形状的画面使用方形像素</translation>
    </message>
    <message>
        <source>no borders are added</source>
        <translation>不加边框</translation>
    </message>
    <message>
        <source>the picture isn&apos;t turned</source>
        <translation>画面不旋转</translation>
    </message>
    <message>
        <source>the picture isn&apos;t sharpened</source>
        <translation>画面不锐化</translation>
    </message>
    <message>
        <source>the height follows from the picture&apos;s shape</source>
        <translation>高度由画面形状决定</translation>
    </message>
    <message>
        <source>the width follows from the picture&apos;s shape</source>
        <translation>宽度由画面形状决定</translation>
    </message>
    <message>
        <source>closed captions aren&apos;t taken</source>
        <translation>不采用隐藏字幕</translation>
    </message>
    <message>
        <source>&quot;convert --burn-subtitles&quot; chooses a track</source>
        <translation>在文件所在行选择要烧录的轨道</translation>
    </message>
    <message>
        <source>&quot;convert --subtitles&quot; chooses tracks</source>
        <translation>在文件所在行选择轨道</translation>
    </message>
    <message>
        <source>all that the format holds; &quot;convert --subtitles&quot; chooses</source>
        <translation>格式可容纳的全部；可在文件所在行选择</translation>
    </message>
    <message>
        <source>the picture stays in colour</source>
        <translation>画面保持彩色</translation>
    </message>
    <message>
        <source>the encoder&apos;s own values</source>
        <translation>编码器自己的值</translation>
    </message>
    <message>
        <source>nothing is cut off</source>
        <translation>不裁剪</translation>
    </message>
    <message>
        <source>black borders stay</source>
        <translation>保留黑边</translation>
    </message>
    <message>
        <source>isn&apos;t known</source>
        <translation>未知</translation>
    </message>
</context>
<context>
    <name>Melt</name>
    <message>
        <source>isn&apos;t used</source>
        <translation>不使用</translation>
    </message>
    <message>
        <source>as many bits and colours as the codec keeps</source>
        <translation>编解码器能保留的位数和颜色</translation>
    </message>
    <message>
        <source>isn&apos;t used; the converter has a way of its own</source>
        <translation>不使用；转换器有自己的方法</translation>
    </message>
    <message>
        <source>the encoder&apos;s good quality</source>
        <translation>编码器的良好质量</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>第 %L1 行</translation>
    </message>
</context>
<context>
    <name>PresetFile</name>
    <message>
        <source>&quot;%1&quot; is not a known key</source>
        <translation>“%1”不是已知的键</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be an object</source>
        <translation>“%1”必须是对象</translation>
    </message>
    <message>
        <source>&quot;%1&quot; must be a text</source>
        <translation>“%1”必须是文本</translation>
    </message>
    <message>
        <source>&quot;settings.%1&quot; is not a known key</source>
        <translation>“settings.%1”不是已知的键</translation>
    </message>
    <message>
        <source>&quot;settings.%1&quot; must be a text</source>
        <translation>“settings.%1”必须是文本</translation>
    </message>
    <message>
        <source>must be an object</source>
        <translation>必须是对象</translation>
    </message>
    <message>
        <source>is one of more than %1</source>
        <translation>超过 %L1 个</translation>
    </message>
    <message>
        <source>%1: %2 at byte %3</source>
        <translation>%1：%2（第 %L3 字节）</translation>
    </message>
    <message>
        <source>%1 has neither a list &quot;presets&quot; nor a list &quot;PresetList&quot;; it is no file of presets</source>
        <translation>%1 既没有“presets”列表也没有“PresetList”列表，不是预设文件</translation>
    </message>
    <message>
        <source>%1 has the version %2, and only version %3 can be read; export it again with this version of vexconvert</source>
        <translation>%1 的版本为 %2，只能读取版本 %3；请用此版本的 vexconvert 重新导出</translation>
    </message>
    <message>
        <source>%1 is no file of presets of vexconvert, HandBrake, Kdenlive or Shotcut</source>
        <translation>%1 不是 vexconvert、HandBrake、Kdenlive 或 Shotcut 的预设文件</translation>
    </message>
</context>
<context>
    <name>PresetImport</name>
    <message>
        <source>its title must have 1 to %1 characters that can be seen</source>
        <translation>标题必须有 1 到 %L1 个可见字符</translation>
    </message>
    <message>
        <source>its note is longer than %1 characters</source>
        <translation>备注超过 %L1 个字符</translation>
    </message>
    <message>
        <source>&quot;%1&quot; isn&apos;t possible for %2</source>
        <translation>%2 不能是“%1”</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written into .%2 files</source>
        <translation>%1 不能写入 .%2 文件</translation>
    </message>
    <message>
        <source>no format here writes video into .%1 files</source>
        <translation>这里没有格式能将视频写入 .%1 文件</translation>
    </message>
    <message>
        <source>no format here writes audio alone into .%1 files</source>
        <translation>这里没有格式能只将音频写入 .%1 文件</translation>
    </message>
    <message>
        <source>its base %1 isn&apos;t in this catalogue; %2 stands in for it</source>
        <translation>它的基础 %1 不在此目录中，由 %2 代替</translation>
    </message>
    <message>
        <source>nothing is imported, as %1 of %2 presets are refused; leave them out with --skip-refused</source>
        <translation>未导入任何内容，因为 %2 个预设中有 %1 个被拒绝；可用 --skip-refused 跳过</translation>
    </message>
    <message>
        <source>preset %1 isn&apos;t yours; only your own can be exported</source>
        <translation>预设 %1 不是您的；只能导出您自己的</translation>
    </message>
</context>
<context>
    <name>ConfigList</name>
    <message>
        <source>%1 is no file; name another one</source>
        <translation>%1 不是文件；请选择其他文件</translation>
    </message>
    <message>
        <source>there is no file %1; check its name</source>
        <translation>没有文件 %1；请检查名称</translation>
    </message>
    <message>
        <source>%1 has %2, and no more than %3 are read</source>
        <translation>%1 有 %2，最多读取 %3</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read (%2); check its permissions</source>
        <translation>无法读取 %1（%2）；请检查权限</translation>
    </message>
</context>
<context>
    <name>PresetHistory</name>
    <message>
        <source>added &quot;%1&quot; (%2)</source>
        <translation>添加了“%1”（%2）</translation>
    </message>
    <message>
        <source>deleted &quot;%1&quot; (%2)</source>
        <translation>删除了“%1”（%2）</translation>
    </message>
    <message>
        <source>changed &quot;%1&quot; (%2)</source>
        <translation>更改了“%1”（%2）</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>另外 %L1 个</translation>
    </message>
    <message>
        <source>there is nothing to undo</source>
        <translation>没有可撤销的操作</translation>
    </message>
    <message>
        <source>what was done last (%1) can&apos;t be undone: another program has changed these presets since</source>
        <translation>无法撤销上一步（%1）：其他程序此后更改了这些预设</translation>
    </message>
</context>
</TS>
