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
        <source>Perspective, horizon and lens corrections for your photos.</source>
        <translation>写真のパースペクティブ、水平、歪曲収差を補正します。</translation>
    </message>
    <message>
        <source>Made with:</source>
        <translation>使用しているソフトウェア：</translation>
    </message>
    <message>
        <source>Licences on the web</source>
        <translation>ライセンス（ウェブ）</translation>
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
<context>
    <name>TOLVAN_NAMESPACE::CArchiveJob</name>
    <message>
        <source>not found</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>not a file</source>
        <translation>ファイルではありません</translation>
    </message>
    <message>
        <source>not a zip archive</source>
        <translation>ZIP アーカイブではありません</translation>
    </message>
    <message>
        <source>unsupported compression method</source>
        <translation>対応していない圧縮方式です</translation>
    </message>
    <message>
        <source>protected by a password</source>
        <translation>パスワードで保護されています</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>破損しています</translation>
    </message>
    <message>
        <source>name not allowed</source>
        <translation>使用できない名前です</translation>
    </message>
    <message>
        <source>leads out of the folder</source>
        <translation>フォルダーの外を指しています</translation>
    </message>
    <message>
        <source>shares data with another entry</source>
        <translation>別の項目とデータを共有しています</translation>
    </message>
    <message>
        <source>too large</source>
        <translation>大きすぎます</translation>
    </message>
    <message>
        <source>not enough disk space</source>
        <translation>ディスクの空き容量が不足しています</translation>
    </message>
    <message>
        <source>access denied</source>
        <translation>アクセスが拒否されました</translation>
    </message>
    <message>
        <source>name used by a folder or a link</source>
        <translation>名前がフォルダーまたはリンクで使用されています</translation>
    </message>
    <message>
        <source>changed while it was read</source>
        <translation>読み取り中に変更されました</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>読み取れません</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>書き込めません</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>中止されました</translation>
    </message>
    <message>
        <source>Stopped after %1 of %2 entries (%3).</source>
        <translation>%2 個中 %1 個の項目 (%3) を処理した後に中止しました。</translation>
    </message>
    <message>
        <source>Checked %1 of %2 entries (%3).</source>
        <translation>%2 個中 %1 個の項目 (%3) を確認しました。</translation>
    </message>
    <message>
        <source>Packed %1 of %2 entries (%3).</source>
        <translation>%2 個中 %1 個の項目 (%3) を圧縮しました。</translation>
    </message>
    <message>
        <source>Unpacked %1 of %2 entries (%3).</source>
        <translation>%2 個中 %1 個の項目 (%3) を展開しました。</translation>
    </message>
    <message>
        <source>Checked %1 of %2 entries (%3). %4: %5.</source>
        <translation>%2 個中 %1 個の項目 (%3) を確認しました。%4: %5。</translation>
    </message>
    <message>
        <source>Packed %1 of %2 entries (%3). %4: %5.</source>
        <translation>%2 個中 %1 個の項目 (%3) を圧縮しました。%4: %5。</translation>
    </message>
    <message>
        <source>Unpacked %1 of %2 entries (%3). %4: %5.</source>
        <translation>%2 個中 %1 個の項目 (%3) を展開しました。%4: %5。</translation>
    </message>
</context>
</TS>
