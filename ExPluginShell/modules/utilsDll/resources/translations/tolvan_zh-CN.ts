<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
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
</TS>
