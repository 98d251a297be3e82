<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CAboutDlg</name>
    <message>
        <source>About Trelio Frame</source>
        <translation>关于 Trelio Frame</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>© Tolvan. All rights reserved.</source>
        <translation>© Tolvan。保留所有权利。</translation>
    </message>
    <message>
        <source>Perspective, horizon and lens corrections for your photos.</source>
        <translation>校正照片的透视、水平和镜头畸变。</translation>
    </message>
    <message>
        <source>Made with:</source>
        <translation>使用以下软件构建：</translation>
    </message>
    <message>
        <source>Licences on the web</source>
        <translation>网上的许可证</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>CAboutOstraDlg</name>
    <message>
        <source>About the Ostra Collection</source>
        <translation>关于 Ostra Collection</translation>
    </message>
    <message>
        <source>with Trelio Frame %1</source>
        <translation>包含 Trelio Frame %1</translation>
    </message>
    <message>
        <source>© Tolvan. All rights reserved.</source>
        <translation>© Tolvan。保留所有权利。</translation>
    </message>
    <message>
        <source>A family of plug-ins for photographers. Its members share their language and their preferences, so that what you set in one holds in all.</source>
        <translation>面向摄影师的插件系列。各插件共用语言和首选项，在一个插件中的设置对所有插件都有效。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>CLanguageManager</name>
    <message>
        <source>language name</source>
        <translation>简体中文</translation>
    </message>
    <message>
        <source>ostra language number</source>
        <translation>13</translation>
    </message>
    <message>
        <source>language number</source>
        <translation>2052</translation>
    </message>
</context>
<context>
    <name>CLanguageTest</name>
    <message>
        <source>language name</source>
        <translation>简体中文</translation>
    </message>
    <message>
        <source>ostra language number</source>
        <translation>13</translation>
    </message>
    <message>
        <source>language number</source>
        <translation>2052</translation>
    </message>
</context>
<context>
    <name>CMessageBox</name>
    <message>
        <source>Dialog</source>
        <translation>对话框</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>不保存</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>Don&apos;t quit</source>
        <translation>不退出</translation>
    </message>
    <message>
        <source>Quit without saving</source>
        <translation>不保存并退出</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>询问</translation>
    </message>
</context>
<context>
    <name>CProgressBox</name>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>正在停止…</translation>
    </message>
    <message>
        <source>A few seconds left</source>
        <translation>还剩几秒</translation>
    </message>
    <message numerus="yes">
        <source>About %n seconds left</source>
        <translation>
            <numerusform>还剩约 %n 秒</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n minutes left</source>
        <translation>
            <numerusform>还剩约 %n 分钟</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n hours left</source>
        <translation>
            <numerusform>还剩约 %n 小时</numerusform>
        </translation>
    </message>
    <message>
        <source>The work could not be completed.</source>
        <translation>操作未能完成。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Windows small space message on drive %1</source>
        <translation>磁盘 %1 的可用空间不足，Trelio Frame 无法启动。
请删除该磁盘上不需要的文件，然后重试。</translation>
    </message>
    <message>
        <source>Out of memory. Program will be closed.</source>
        <translation>可用内存不足，Trelio Frame 必须关闭。
请关闭其他一些程序，然后再次启动 Trelio Frame。</translation>
    </message>
    <message>
        <source>%1 has run out of memory. The application may now become unstable. Please close %2 and Photoshop, quit all other programs running, and try again.</source>
        <translation>%1 内存不足，应用程序可能变得不稳定。请关闭 %2 和 Photoshop，退出所有其他正在运行的程序，然后重试。</translation>
    </message>
    <message>
        <source>Unhandled exception. Program will be closed.</source>
        <translation>发生未处理的异常，Trelio Frame 必须关闭。</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>KB</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <source>px</source>
        <translation>像素</translation>
    </message>
    <message>
        <source>in</source>
        <translation>英寸</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>厘米</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>毫米</translation>
    </message>
</context>
<context>
    <name>TOLVAN_NAMESPACE::CArchiveJob</name>
    <message>
        <source>not found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>not a file</source>
        <translation>不是文件</translation>
    </message>
    <message>
        <source>not a zip archive</source>
        <translation>不是 ZIP 压缩包</translation>
    </message>
    <message>
        <source>unsupported compression method</source>
        <translation>不支持的压缩方法</translation>
    </message>
    <message>
        <source>protected by a password</source>
        <translation>受密码保护</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>已损坏</translation>
    </message>
    <message>
        <source>name not allowed</source>
        <translation>名称不允许使用</translation>
    </message>
    <message>
        <source>leads out of the folder</source>
        <translation>指向文件夹之外</translation>
    </message>
    <message>
        <source>shares data with another entry</source>
        <translation>与其他条目共用数据</translation>
    </message>
    <message>
        <source>too large</source>
        <translation>过大</translation>
    </message>
    <message>
        <source>not enough disk space</source>
        <translation>磁盘空间不足</translation>
    </message>
    <message>
        <source>access denied</source>
        <translation>访问被拒绝</translation>
    </message>
    <message>
        <source>name used by a folder or a link</source>
        <translation>名称已被文件夹或链接占用</translation>
    </message>
    <message>
        <source>changed while it was read</source>
        <translation>读取时发生更改</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>无法写入</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>Stopped after %1 of %2 entries (%3).</source>
        <translation>处理 %2 个条目中的 %1 个 (%3) 后已停止。</translation>
    </message>
    <message>
        <source>Checked %1 of %2 entries (%3).</source>
        <translation>已检查 %2 个条目中的 %1 个 (%3)。</translation>
    </message>
    <message>
        <source>Packed %1 of %2 entries (%3).</source>
        <translation>已压缩 %2 个条目中的 %1 个 (%3)。</translation>
    </message>
    <message>
        <source>Unpacked %1 of %2 entries (%3).</source>
        <translation>已解压 %2 个条目中的 %1 个 (%3)。</translation>
    </message>
    <message>
        <source>Checked %1 of %2 entries (%3). %4: %5.</source>
        <translation>已检查 %2 个条目中的 %1 个 (%3)。%4：%5。</translation>
    </message>
    <message>
        <source>Packed %1 of %2 entries (%3). %4: %5.</source>
        <translation>已压缩 %2 个条目中的 %1 个 (%3)。%4：%5。</translation>
    </message>
    <message>
        <source>Unpacked %1 of %2 entries (%3). %4: %5.</source>
        <translation>已解压 %2 个条目中的 %1 个 (%3)。%4：%5。</translation>
    </message>
</context>
</TS>
