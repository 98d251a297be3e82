<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>CAboutDlg</name>
    <message>
        <source>About Trelio Frame</source>
        <translation>Trelio Frame について</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>© Tolvan. All rights reserved.</source>
        <translation>© Tolvan. 無断転載を禁じます。</translation>
    </message>
    <message>
        <source>Perspective, horizon and lens corrections for your photos. Made with:</source>
        <translation>写真のパースペクティブ、水平、歪曲収差を補正します。使用しているソフトウェア：</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>CAboutOstraDlg</name>
    <message>
        <source>About the Ostra Collection</source>
        <translation>Ostra Collection について</translation>
    </message>
    <message>
        <source>with Trelio Frame %1</source>
        <translation>Trelio Frame %1 を含む</translation>
    </message>
    <message>
        <source>© Tolvan. All rights reserved.</source>
        <translation>© Tolvan. 無断転載を禁じます。</translation>
    </message>
    <message>
        <source>A family of plug-ins for photographers. Its members share their language and their preferences, so that what you set in one holds in all.</source>
        <translation>写真家のためのプラグインファミリーです。言語と環境設定を共有しているため、1 つのプラグインで設定した内容がすべてに適用されます。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>CLanguageManager</name>
    <message>
        <source>language name</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>ostra language number</source>
        <translation>12</translation>
    </message>
    <message>
        <source>language number</source>
        <translation>1041</translation>
    </message>
</context>
<context>
    <name>CLanguageTest</name>
    <message>
        <source>language name</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>ostra language number</source>
        <translation>12</translation>
    </message>
    <message>
        <source>language number</source>
        <translation>1041</translation>
    </message>
</context>
<context>
    <name>CMessageBox</name>
    <message>
        <source>Dialog</source>
        <translation>ダイアログ</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Don&apos;t save</source>
        <translation>保存しない</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>Don&apos;t quit</source>
        <translation>終了しない</translation>
    </message>
    <message>
        <source>Quit without saving</source>
        <translation>保存せずに終了</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>質問</translation>
    </message>
</context>
<context>
    <name>CProgressBox</name>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>停止しています…</translation>
    </message>
    <message>
        <source>A few seconds left</source>
        <translation>残り数秒</translation>
    </message>
    <message numerus="yes">
        <source>About %n seconds left</source>
        <translation>
            <numerusform>残り約%n秒</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n minutes left</source>
        <translation>
            <numerusform>残り約%n分</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>About %n hours left</source>
        <translation>
            <numerusform>残り約%n時間</numerusform>
        </translation>
    </message>
    <message>
        <source>The work could not be completed.</source>
        <translation>処理を完了できませんでした。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Windows small space message on drive %1</source>
        <translation>ディスク %1 の空き容量が不足しているため、Trelio Frame を起動できません。
ディスクから不要なファイルを削除して、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Out of memory. Program will be closed.</source>
        <translation>使用可能なメモリが不足しているため、Trelio Frame を終了します。
ほかのプログラムをいくつか終了してから、Trelio Frame をもう一度起動してください。</translation>
    </message>
    <message>
        <source>%1 has run out of memory. The application may now become unstable. Please close %2 and Photoshop, quit all other programs running, and try again.</source>
        <translation>%1 のメモリが不足しています。アプリケーションの動作が不安定になる可能性があります。%2 と Photoshop を終了し、実行中のほかのプログラムもすべて終了してから、もう一度お試しください。</translation>
    </message>
    <message>
        <source>Unhandled exception. Program will be closed.</source>
        <translation>処理されない例外が発生したため、Trelio Frame を終了します。</translation>
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
        <translation>px</translation>
    </message>
    <message>
        <source>in</source>
        <translation>in</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
</context>
</TS>
