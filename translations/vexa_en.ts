<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="ja">
<context>
    <name>Text</name>
    <message>
        <source>%1分前</source>
        <translation>%1 min ago</translation>
    </message>
    <message>
        <source>%1時間前</source>
        <translation>%1 h ago</translation>
    </message>
    <message>
        <source>%1日前</source>
        <translation>%1 days ago</translation>
    </message>
    <message>
        <source>時間</source>
        <translation>time</translation>
    </message>
    <message>
        <source>回数</source>
        <translation>averaging</translation>
    </message>
    <message>
        <source>変更</source>
        <translation> changed</translation>
    </message>
    <message>
        <source>%1分経過</source>
        <translation>%1 min old</translation>
    </message>
    <message>
        <source>時計変更</source>
        <translation>clock changed</translation>
    </message>
    <message>
        <source>com5 (/dev/ttyUSB0) という装置がありません。</source>
        <translation>There is no device com5 (/dev/ttyUSB0).</translation>
    </message>
    <message>
        <source>反射率ｸﾞﾗﾌ</source>
        <translation>Reflectance graph</translation>
    </message>
    <message>
        <source>反射率ﾃｷｽﾄ</source>
        <translation>Reflectance text</translation>
    </message>
    <message>
        <source>屈折率ｸﾞﾗﾌ</source>
        <translation>Refractive index graph</translation>
    </message>
    <message>
        <source>光量ｸﾞﾗﾌ</source>
        <translation>Light intensity graph</translation>
    </message>
    <message>
        <source>光量ﾃｷｽﾄ</source>
        <translation>Light intensity text</translation>
    </message>
    <message>
        <source>色度図</source>
        <translation>Chromaticity diagram</translation>
    </message>
    <message>
        <source>ﾌｧｲﾙ(&amp;F)</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>ﾌｧｲﾙを開く(&amp;O)</source>
        <translation>&amp;Open file</translation>
    </message>
    <message>
        <source>ﾌｧｲﾙの名前を付けて保存(&amp;A)</source>
        <translation>Save file &amp;as</translation>
    </message>
    <message>
        <source>環境ﾌｧｲﾙを開く(&amp;W)</source>
        <translation>Open environment file (&amp;W)</translation>
    </message>
    <message>
        <source>環境ﾌｧｲﾙの上書き保存(&amp;S)</source>
        <translation>&amp;Save environment file</translation>
    </message>
    <message>
        <source>環境ﾌｧｲﾙの名前を付けて保存(&amp;L)</source>
        <translation>Save environment fi&amp;le as</translation>
    </message>
    <message>
        <source>印刷設定(&amp;U)</source>
        <translation>Print set&amp;up</translation>
    </message>
    <message>
        <source>印刷(&amp;P)</source>
        <translation>&amp;Print</translation>
    </message>
    <message>
        <source>ﾌﾟﾛｸﾞﾗﾑの終了(&amp;X)</source>
        <translation>E&amp;xit</translation>
    </message>
    <message>
        <source>表示(&amp;V)</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>ｸﾞﾗﾌ設定(&amp;G)</source>
        <translation>&amp;Graph settings</translation>
    </message>
    <message>
        <source>設定一覧表示(&amp;C)</source>
        <translation>List of settings (&amp;C)</translation>
    </message>
    <message>
        <source>付加ﾃﾞｰﾀ</source>
        <translation>Sample information</translation>
    </message>
    <message>
        <source>規格(&amp;K)</source>
        <translation>Standards (&amp;K)</translation>
    </message>
    <message>
        <source>規格設定(&amp;S)</source>
        <translation>&amp;Standard settings</translation>
    </message>
    <message>
        <source>解析(&amp;T)</source>
        <translation>Analysis (&amp;T)</translation>
    </message>
    <message>
        <source>膜厚測定設定(&amp;T)</source>
        <translation>Film &amp;thickness settings</translation>
    </message>
    <message>
        <source>膜厚波長ﾘｽﾄ(&amp;L)</source>
        <translation>Wavelength &amp;list</translation>
    </message>
    <message>
        <source>膜厚ｸﾞﾗﾌ(&amp;G)</source>
        <translation>Thickness &amp;graph</translation>
    </message>
    <message>
        <source>色差測定</source>
        <translation>Colour difference</translation>
    </message>
    <message>
        <source>ｼｽﾃﾑ設定(&amp;S)</source>
        <translation>&amp;System settings</translation>
    </message>
    <message>
        <source>ﾘﾌｧﾚﾝｽ設定(&amp;R)</source>
        <translation>&amp;Reference settings</translation>
    </message>
    <message>
        <source>ｻﾝﾌﾟﾘﾝｸﾞ設定(&amp;S)</source>
        <translation>&amp;Sampling settings</translation>
    </message>
    <message>
        <source>ｷｬﾘﾌﾞﾚｰｼｮﾝ(&amp;C)</source>
        <translation>&amp;Calibration</translation>
    </message>
    <message>
        <source>再接続(&amp;N)</source>
        <translation>Reco&amp;nnect</translation>
    </message>
    <message>
        <source>ﾍﾙﾌﾟ(&amp;H)</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>ﾊﾞｰｼﾞｮﾝ(&amp;A)</source>
        <translation>&amp;About</translation>
    </message>
    <message>
        <source>ｻﾝﾌﾟﾙをｽﾛｯﾄ%1に測定 (Ctrl+%2)</source>
        <translation>Measure the sample into slot %1 (Ctrl+%2)</translation>
    </message>
    <message>
        <source>ﾊﾞｯｸｸﾞﾗﾝﾄﾞ測定</source>
        <translation>Measure the background</translation>
    </message>
    <message>
        <source>ﾘﾌｧﾚﾝｽ測定</source>
        <translation>Measure the reference</translation>
    </message>
    <message>
        <source>全ｽﾛｯﾄをｸﾘｱ</source>
        <translation>Clear all slots</translation>
    </message>
    <message>
        <source>試料情報</source>
        <translation>Sample information</translation>
    </message>
    <message>
        <source>光路が閉じています。
測定すると開きます。</source>
        <translation>The light path is closed.
Measuring opens it.</translation>
    </message>
    <message>
        <source>ｽﾛｯﾄ%1を表示</source>
        <translation>Show slot %1</translation>
    </message>
    <message>
        <source>ｺﾝﾄﾛｰﾗの応答を待っています</source>
        <translation>Waiting for the controller</translation>
    </message>
    <message>
        <source>光ｼｬｯﾀの応答を待っています</source>
        <translation>Waiting for the light shutter</translation>
    </message>
    <message>
        <source>接眼ｼｬｯﾀの応答を待っています</source>
        <translation>Waiting for the eyepiece shutter</translation>
    </message>
    <message>
        <source>ﾗﾝﾌﾟの応答を待っています</source>
        <translation>Waiting for the lamp</translation>
    </message>
    <message>
        <source>安定するのを待っています</source>
        <translation>Waiting to settle</translation>
    </message>
    <message>
        <source>測定しています</source>
        <translation>Measuring</translation>
    </message>
    <message>
        <source>ﾃﾞｰﾀを受信しています</source>
        <translation>Receiving data</translation>
    </message>
    <message>
        <source>中止</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>ｺﾝﾄﾛｰﾗ未接続</source>
        <translation>Controller not connected</translation>
    </message>
    <message>
        <source> / %1 秒</source>
        <translation> / %1 s</translation>
    </message>
    <message>
        <source> 秒</source>
        <translation> s</translation>
    </message>
    <message>
        <source>  (%1 秒で中断)</source>
        <translation>  (stops at %1 s)</translation>
    </message>
    <message>
        <source>ﾊﾞｯｸｸﾞﾗﾝﾄﾞ: </source>
        <translation>Background: </translation>
    </message>
    <message>
        <source>ﾘﾌｧﾚﾝｽ: </source>
        <translation>Reference: </translation>
    </message>
    <message>
        <source>ｽﾛｯﾄ: </source>
        <translation>Slots: </translation>
    </message>
    <message>
        <source>累積数: %1</source>
        <translation>Accumulated: %1</translation>
    </message>
    <message>
        <source>膜厚ｸﾞﾗﾌ: %1</source>
        <translation>Thickness graph: %1</translation>
    </message>
    <message>
        <source>限界と比べる値がありません。</source>
        <translation>There is no value to compare with the limits.</translation>
    </message>
    <message>
        <source>規格が440nm-840nmの範囲で判定できません。</source>
        <translation>The standards cannot be judged within 440nm-840nm.</translation>
    </message>
    <message>
        <source>限界外: </source>
        <translation>Outside the limit: </translation>
    </message>
    <message>
        <source>限界までの余裕: </source>
        <translation>Margin to the limit: </translation>
    </message>
    <message>
        <source>環境ﾌｧｲﾙ名</source>
        <translation>Environment file</translation>
    </message>
    <message>
        <source>ﾊﾞｰｼﾞｮﾝ</source>
        <translation>About</translation>
    </message>
    <message>
        <source>閉じる</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>顕微反射率測定装置 制御･解析ﾌﾟﾛｸﾞﾗﾑ</source>
        <translation>Reflectance micro-spectrophotometer: control and analysis</translation>
    </message>
    <message>
        <source>VEXA設定一覧</source>
        <translation>VEXA settings</translation>
    </message>
    <message>
        <source>ﾌｧｲﾙがありません。</source>
        <translation>The file does not exist.</translation>
    </message>
    <message>
        <source>通常のﾌｧｲﾙではありません。</source>
        <translation>This is not a regular file.</translation>
    </message>
    <message>
        <source>ﾌｧｲﾙを読めません。</source>
        <translation>The file cannot be read.</translation>
    </message>
    <message>
        <source>ﾌｧｲﾙが大きすぎます。</source>
        <translation>The file is too large.</translation>
    </message>
    <message>
        <source>ﾌｧｲﾙの種類またはﾊﾞｰｼﾞｮﾝが違います。</source>
        <translation>The file is of another kind or version.</translation>
    </message>
    <message>
        <source>ﾌｧｲﾙが途中で終わっています。</source>
        <translation>The file ends too early.</translation>
    </message>
    <message>
        <source>項目が足りません。</source>
        <translation>Fields are missing.</translation>
    </message>
    <message>
        <source>値として読めません。</source>
        <translation>This cannot be read as a value.</translation>
    </message>
    <message>
        <source>値が範囲外です。</source>
        <translation>The value is out of range.</translation>
    </message>
    <message>
        <source>%1行目</source>
        <translation>Line %1</translation>
    </message>
    <message>
        <source> %1番目の項目</source>
        <translation>, field %1</translation>
    </message>
    <message>
        <source>VEXA-KT ｴﾗｰ</source>
        <translation>VEXA-KT error</translation>
    </message>
    <message>
        <source>VEXA-KT ﾜｰﾆﾝｸﾞ</source>
        <translation>VEXA-KT warning</translation>
    </message>
    <message>
        <source>VEXA-KT ﾒｯｾｰｼﾞ</source>
        <translation>VEXA-KT message</translation>
    </message>
    <message>
        <source>VEXA-KT 情報</source>
        <translation>VEXA-KT information</translation>
    </message>
    <message>
        <source>設定入力</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>ｺﾝﾄﾛｰﾗｴﾗｰ</source>
        <translation>Controller error</translation>
    </message>
    <message>
        <source>確認</source>
        <translation>Confirm</translation>
    </message>
    <message>
        <source>同ﾌｧｲﾙ名が存在します。上書き保存しますか？</source>
        <translation>A file of that name exists. Overwrite it?</translation>
    </message>
    <message>
        <source>現在累積されている色度図データと表示条件が異なります。現累積データをクリアしますか？</source>
        <translation>The conditions of display differ from those of the accumulated chromaticity data. Clear the accumulated data?</translation>
    </message>
    <message>
        <source>通信でﾃﾞﾊﾞｲｽ･ｴﾗｰ発生しました。</source>
        <translation>A device error occurred in the communication.</translation>
    </message>
    <message>
        <source>ﾌｧｲﾙ名に、設定ﾌｧｲﾙに保存できない文字が含まれています。<byte value="xd"/><byte value="xd"/>%1</source>
        <translation>The file name has characters that the settings file cannot hold.<byte value="xd"/><byte value="xd"/>%1</translation>
    </message>
    <message>
        <source>ﾌｧｲﾙの書き込みでエラーが発生しました。<byte value="xd"/><byte value="xd"/>%1<byte value="xd"/><byte value="xd"/>%2</source>
        <translation>An error occurred while writing the file.<byte value="xd"/><byte value="xd"/>%1<byte value="xd"/><byte value="xd"/>%2</translation>
    </message>
    <message>
        <source>ﾃﾞｰﾀ･ﾌｧｲﾙの読み込みでエラーが発生しました。<byte value="xd"/><byte value="xd"/>%1ﾌｧｲﾙではありません。<byte value="xd"/><byte value="xd"/>ﾌｧｲﾙを確認してください。</source>
        <translation>An error occurred while reading the data file.<byte value="xd"/><byte value="xd"/>It is not a %1.<byte value="xd"/><byte value="xd"/>Please check the file.</translation>
    </message>
    <message>
        <source>ﾃﾞｰﾀ･ﾌｧｲﾙの読み込みでエラーが発生しました。<byte value="xd"/><byte value="xd"/>VEXA-KT 旧Verのデータﾌｧｲﾙではありません。<byte value="xd"/><byte value="xd"/>ﾌｧｲﾙを確認してください。</source>
        <translation>An error occurred while reading the data file.<byte value="xd"/><byte value="xd"/>It is not a VEXA-KT data file of the old version.<byte value="xd"/><byte value="xd"/>Please check the file.</translation>
    </message>
    <message>
        <source>%1ﾃﾞｰﾀをひらくためﾃﾞｰﾀ１～ﾃﾞｰﾀ%1までのﾃﾞｰﾀが消去されます。</source>
        <translation>Opening %1 data erases data 1 to %1.</translation>
    </message>
    <message>
        <source>ﾃﾞｰﾀ･ﾌｧｲﾙの読み込みでエラーが発生しました。</source>
        <translation>An error occurred while reading the data file.</translation>
    </message>
    <message>
        <source>ﾃﾞｰﾀ･ﾌｧｲﾙの読み込みでエラーが発生しました。<byte value="xd"/><byte value="xd"/>%1ﾌｧｲﾙではありません<byte value="xd"/><byte value="xd"/>ﾌｧｲﾙを確認してください。</source>
        <translation>An error occurred while reading the data file.<byte value="xd"/><byte value="xd"/>It is not a %1.<byte value="xd"/><byte value="xd"/>Please check the file.</translation>
    </message>
    <message>
        <source>規格ﾌｧｲﾙ名:%1<byte value="xd"/><byte value="xd"/>Ver1.10以前の規格ﾌｧｲﾙは読み込めません。</source>
        <translation>Standard file: %1<byte value="xd"/><byte value="xd"/>Standard files of Ver1.10 and earlier cannot be read.</translation>
    </message>
    <message>
        <source>規格ﾌｧｲﾙの読み込みでエラーが発生しました。<byte value="xd"/><byte value="xd"/>規格ﾌｧｲﾙ名:%1</source>
        <translation>An error occurred while reading the standard file.<byte value="xd"/><byte value="xd"/>Standard file: %1</translation>
    </message>
    <message>
        <source>規格ﾌｧｲﾙがｾｰﾌﾞされていません。ｾｰﾌﾞしますか。</source>
        <translation>The standard file has not been saved. Save it?</translation>
    </message>
    <message>
        <source>ﾌｧｲﾙの読み込みでエラーが発生しました。<byte value="xd"/><byte value="xd"/>ﾌｧｲﾙ名:%1<byte value="xd"/><byte value="xd"/>ﾃﾞﾌｫﾙﾄ値に設定されます。</source>
        <translation>An error occurred while reading the file.<byte value="xd"/><byte value="xd"/>File: %1<byte value="xd"/><byte value="xd"/>The default values are set.</translation>
    </message>
    <message>
        <source>環境ﾌｧｲﾙのVerエラーが発生しました。<byte value="xd"/><byte value="xd"/>環境ﾌｧｲﾙ名:%1<byte value="xd"/><byte value="xd"/>環境ﾌｧｲﾙVer:%2<byte value="xd"/><byte value="xd"/>環境ﾊﾟﾗﾒｰﾀｰはﾃﾞﾌｫﾙﾄ値に設定されます。</source>
        <translation>The environment file has a wrong version.<byte value="xd"/><byte value="xd"/>Environment file: %1<byte value="xd"/><byte value="xd"/>Environment file Ver: %2<byte value="xd"/><byte value="xd"/>The environment is set to its default values.</translation>
    </message>
    <message>
        <source>環境ﾌｧｲﾙの読み込みでエラーが発生しました。<byte value="xd"/><byte value="xd"/>環境ﾌｧｲﾙ名:%1<byte value="xd"/><byte value="xd"/>環境ﾊﾟﾗﾒｰﾀｰはﾃﾞﾌｫﾙﾄ値に設定されます。</source>
        <translation>An error occurred while reading the environment file.<byte value="xd"/><byte value="xd"/>Environment file: %1<byte value="xd"/><byte value="xd"/>The environment is set to its default values.</translation>
    </message>
    <message>
        <source>環境ﾌｧｲﾙが見つかりません。<byte value="xd"/><byte value="xd"/>環境ﾌｧｲﾙ名:%1<byte value="xd"/><byte value="xd"/>環境ﾊﾟﾗﾒｰﾀｰはﾃﾞﾌｫﾙﾄ値に設定されます。</source>
        <translation>The environment file was not found.<byte value="xd"/><byte value="xd"/>Environment file: %1<byte value="xd"/><byte value="xd"/>The environment is set to its default values.</translation>
    </message>
    <message>
        <source>環境ﾌｧｲﾙの光源の値が正しくありません。<byte value="xd"/><byte value="xd"/>環境ﾌｧｲﾙ名:%1<byte value="xd"/><byte value="xd"/>光源:%2</source>
        <translation>The illuminant in the environment file is not valid.<byte value="xd"/><byte value="xd"/>Environment file: %1<byte value="xd"/><byte value="xd"/>Illuminant: %2</translation>
    </message>
    <message>
        <source>ﾌｧｲﾙ名が定義されていません。</source>
        <translation>No file name is given.</translation>
    </message>
    <message>
        <source>読み込まれていない環境ﾌｧｲﾙです。上書き保存しますか？<byte value="xd"/><byte value="xd"/>%1</source>
        <translation>This environment file has not been read. Overwrite it?<byte value="xd"/><byte value="xd"/>%1</translation>
    </message>
    <message>
        <source>%1<byte value="xd"/><byte value="xd"/>現在の環境をｾｰﾌﾞしますか。</source>
        <translation>%1<byte value="xd"/><byte value="xd"/>Save the current environment?</translation>
    </message>
    <message>
        <source>ﾌﾟﾛｸﾞﾗﾑの設定ﾌｧｲﾙを読めません。次の名前で残し、既定の設定で始めます。<byte value="xd"/><byte value="xd"/>%1</source>
        <translation>The settings file of the program cannot be read. It is kept under this name, and the usual settings are taken.<byte value="xd"/><byte value="xd"/>%1</translation>
    </message>
    <message>
        <source>ほかのﾊﾞｰｼﾞｮﾝのｼﾞｬｰﾅﾙ･ﾌｧｲﾙは復元できません。次の名前で残します。<byte value="xd"/><byte value="xd"/>%1</source>
        <translation>Journal files of another version cannot be restored. They are kept under these names.<byte value="xd"/><byte value="xd"/>%1</translation>
    </message>
    <message>
        <source>読めないｼﾞｬｰﾅﾙ･ﾌｧｲﾙは復元できません。次の名前で残します。<byte value="xd"/><byte value="xd"/>%1</source>
        <translation>Journal files that are unreadable cannot be restored. They are kept under these names.<byte value="xd"/><byte value="xd"/>%1</translation>
    </message>
    <message>
        <source>前回の測定ﾃﾞｰﾀが残っています。復元しますか。<byte value="xd"/><byte value="xd"/>%1<byte value="xd"/><byte value="xd"/>いいえ: 破棄します。<byte value="xd"/>ｷｬﾝｾﾙ: 次の起動まで残します。</source>
        <translation>Measured data of an earlier session are left. Restore them?<byte value="xd"/><byte value="xd"/>%1<byte value="xd"/><byte value="xd"/>No: discards them.<byte value="xd"/>Cancel: keeps them until the next start.</translation>
    </message>
    <message>
        <source>前回の測定ﾃﾞｰﾀが残っています。復元しますか。<byte value="xd"/><byte value="xd"/>%1<byte value="xd"/><byte value="xd"/>壊れた記録があります。読めた記録を復元し、ﾌｧｲﾙの写しを残します。<byte value="xd"/><byte value="xd"/>いいえ: 破棄します。<byte value="xd"/>ｷｬﾝｾﾙ: 次の起動まで残します。</source>
        <translation>Measured data of an earlier session are left. Restore them?<byte value="xd"/><byte value="xd"/>%1<byte value="xd"/><byte value="xd"/>Some records are damaged. The readable ones are restored, and a copy of the file is kept.<byte value="xd"/><byte value="xd"/>No: discards them.<byte value="xd"/>Cancel: keeps them until the next start.</translation>
    </message>
    <message>
        <source>ｼﾞｬｰﾅﾙ･ﾌｧｲﾙに書き込めません。測定は続けられますが、ﾌﾟﾛｸﾞﾗﾑが異常終了すると測定ﾃﾞｰﾀは失われます。<byte value="xd"/><byte value="xd"/>%1</source>
        <translation>The journal file cannot be written. Measuring can go on, but measured data are lost if the program ends abnormally.<byte value="xd"/><byte value="xd"/>%1</translation>
    </message>
    <message>
        <source>GP-IB通信でSRQｴﾗｰ発生しました。(%1 %2)</source>
        <translation>An SRQ error occurred in the GP-IB communication. (%1 %2)</translation>
    </message>
    <message>
        <source>ｺﾝﾄﾛｰﾗｴﾗｰ(%1 %2)</source>
        <translation>Controller error (%1 %2)</translation>
    </message>
    <message>
        <source>GP-IB通信でﾌｫｰﾏｯﾄ･ｴﾗｰ発生しました。(%1 %2)</source>
        <translation>A format error occurred in the GP-IB communication. (%1 %2)</translation>
    </message>
    <message>
        <source>GP-IB通信でﾀｲﾑｱｳﾄ･ｴﾗｰ発生しました。(%1 %2)</source>
        <translation>A time-out error occurred in the GP-IB communication. (%1 %2)</translation>
    </message>
    <message>
        <source>通信でﾃﾞﾊﾞｲｽ･ｴﾗｰ発生しました。(%1 %2)</source>
        <translation>A device error occurred in the communication. (%1 %2)</translation>
    </message>
    <message>
        <source>GP-IB通信でｵﾊﾞｰﾌﾛｰ･ｴﾗｰ発生しました。(%1 %2)</source>
        <translation>An overflow error occurred in the GP-IB communication. (%1 %2)</translation>
    </message>
    <message>
        <source>コントロールボックスの初期化でｴﾗｰ発生しました。(%1 %2)</source>
        <translation>An error occurred while initializing the control box. (%1 %2)</translation>
    </message>
    <message>
        <source>GP-IB通信で予期しないｴﾗｰ発生しました。(%1 %2)</source>
        <translation>An unexpected error occurred in the GP-IB communication. (%1 %2)</translation>
    </message>
    <message>
        <source>ｻﾝﾌﾟﾘﾝｸﾞ設定でｴﾗｰが発生しました。</source>
        <translation>An error occurred while setting the sampling.</translation>
    </message>
    <message>
        <source>ｺﾝﾄﾛｰﾗが接続されていません。</source>
        <translation>The controller is not connected.</translation>
    </message>
    <message>
        <source>ﾊﾞｯｸｸﾞﾗﾝﾄﾞを測定して下さい。</source>
        <translation>Please measure the background.</translation>
    </message>
    <message>
        <source>ﾘﾌｧﾚﾝｽを測定して下さい。</source>
        <translation>Please measure the reference.</translation>
    </message>
    <message>
        <source>すでに測定されてます。上書きしてもよろしいですか？</source>
        <translation>This has been measured already. Overwrite it?</translation>
    </message>
    <message>
        <source>全てのデータをクリアします。よろしいですか？</source>
        <translation>All data will be cleared. Continue?</translation>
    </message>
    <message>
        <source>取り込んだﾃﾞｰﾀが飽和しています。</source>
        <translation>The acquired data are saturated.</translation>
    </message>
    <message>
        <source>データ取得でエラーが発生しました。</source>
        <translation>An error occurred while acquiring data.</translation>
    </message>
    <message>
        <source>測定中です。測定を中止して終了しますか。</source>
        <translation>A measurement is running. Cancel it and exit?</translation>
    </message>
    <message>
        <source>予期しないエラーが発生しました。<byte value="xd"/>%1</source>
        <translation>An unexpected error occurred.<byte value="xd"/>%1</translation>
    </message>
    <message>
        <source>有効ﾃﾞｰﾀがありません。</source>
        <translation>There are no valid data.</translation>
    </message>
    <message>
        <source>累積データ数が100になりました</source>
        <translation>The number of accumulated data has reached 100</translation>
    </message>
    <message>
        <source>累積データ数が100を越えました。データをクリアしてください。</source>
        <translation>The number of accumulated data exceeds 100. Please clear the data.</translation>
    </message>
    <message>
        <source>色座標の作成を中止します。</source>
        <translation>Making the chromaticity coordinates is cancelled.</translation>
    </message>
    <message>
        <source>Erroro GetBunsanArray(Bunsan.Bas)</source>
        <translation>Erroro GetBunsanArray(Bunsan.Bas)</translation>
    </message>
    <message>
        <source>%1分散計算が発生しました。設定は無効となります。</source>
        <translation>%1: the dispersion calculation failed. The setting is not valid.</translation>
    </message>
    <message>
        <source>%1分散データが読み込まれていません。</source>
        <translation>%1: no dispersion data have been read.</translation>
    </message>
    <message>
        <source>%1基板屈折率データが読み込まれていません。</source>
        <translation>%1: no substrate refractive index data have been read.</translation>
    </message>
    <message>
        <source>’タイプＣ’と’基板屈折率を使用し計算’の組み合わせはできません。</source>
        <translation>&apos;Type C&apos; and &apos;Calculate with the substrate refractive index&apos; cannot be combined.</translation>
    </message>
    <message>
        <source>固定反射率値が設定範囲を越えています。 (0.1 ≦ 設定値 ≦ 110)</source>
        <translation>The constant reflectance is out of range. (0.1 ≤ value ≤ 110)</translation>
    </message>
    <message>
        <source>固定屈折率が設定範囲を越えています。 (0.1 ≦ 設定値 ≦ 10)</source>
        <translation>The constant refractive index is out of range. (0.1 ≤ value ≤ 10)</translation>
    </message>
    <message>
        <source>係数が数値ではありません。</source>
        <translation>A coefficient is not a number.</translation>
    </message>
    <message>
        <source>ﾘﾌｧﾚﾝｽ･ﾌｧｲﾙの読み込みに失敗しました。</source>
        <translation>Reading the reference file failed.</translation>
    </message>
    <message>
        <source>ﾘﾌｧﾚﾝｽ･ﾌｧｲﾙの書き込みに失敗しました。</source>
        <translation>Writing the reference file failed.</translation>
    </message>
    <message>
        <source>屈折率ﾌｧｲﾙの読み込みに失敗しました。</source>
        <translation>Reading the refractive index file failed.</translation>
    </message>
    <message>
        <source>屈折率ﾌｧｲﾙの書き込みに失敗しました。</source>
        <translation>Writing the refractive index file failed.</translation>
    </message>
    <message>
        <source>検出ピーク数が２個以下で膜厚計算にｴﾗｰが発生しました。</source>
        <translation>The film thickness could not be calculated: two peaks or fewer were detected.</translation>
    </message>
    <message>
        <source>検出ピーク個数が最大検出数を越えて膜厚計算にｴﾗｰが発生しました。(最大ﾋﾟｰｸ数50)</source>
        <translation>The film thickness could not be calculated: more peaks were detected than can be held. (at most 50 peaks)</translation>
    </message>
    <message>
        <source>膜厚計算でｴﾗｰが発生しました。</source>
        <translation>An error occurred in the film thickness calculation.</translation>
    </message>
    <message>
        <source>膜厚測定設定が有効ではありません。</source>
        <translation>The film thickness settings are not valid.</translation>
    </message>
    <message>
        <source>膜厚測定が設定されていません。</source>
        <translation>The film thickness measurement is not set up.</translation>
    </message>
    <message>
        <source>履歴の膜厚と種類（物理膜厚、光学膜厚）が異なります。<byte value="xd"/>全ﾃﾞｰﾀ･ｸﾘｱの後に追加して下さい。</source>
        <translation>The kind of film thickness (physical, optical) differs from that of the history.<byte value="xd"/>Please clear all data before adding.</translation>
    </message>
    <message>
        <source>ｸﾞﾗﾌ･ﾃﾞｰﾀ数が最大ﾃﾞｰﾀ数を越えました。&#x3000;(最大ﾃﾞｰﾀ数 50 ﾎﾟｲﾝﾄ)</source>
        <translation>The graph cannot hold more data. (at most 50 points)</translation>
    </message>
    <message>
        <source>ﾃﾞｰﾀがありません。</source>
        <translation>There are no data.</translation>
    </message>
    <message>
        <source>測定ﾃﾞｰﾀをｸﾘｱします。</source>
        <translation>The measured data will be cleared.</translation>
    </message>
    <message>
        <source>設定にｴﾗｰが発生しました。変更はされません。</source>
        <translation>The settings have an error. They are not changed.</translation>
    </message>
    <message>
        <source>ｽｹｰﾙ設定が設定範囲を越えています。(0 ≦ 設定値 ≦ 20000)</source>
        <translation>The scale is out of range. (0 ≤ value ≤ 20000)</translation>
    </message>
    <message>
        <source>膜厚履歴ﾌｧｲﾙの書き込みに失敗しました。</source>
        <translation>Writing the thickness history file failed.</translation>
    </message>
    <message>
        <source>%1波長範囲外エラー</source>
        <translation>%1: wavelength out of range</translation>
    </message>
    <message>
        <source>%1規格マイナス指定エラー</source>
        <translation>%1: negative standard</translation>
    </message>
    <message>
        <source>%1大小反転エラー</source>
        <translation>%1: lower limit above upper limit</translation>
    </message>
    <message>
        <source>%1同一波長指定エラー</source>
        <translation>%1: same wavelength given twice</translation>
    </message>
    <message>
        <source>%1範囲外エラー&lt;範囲:0°-360°&gt;</source>
        <translation>%1: out of range &lt;range: 0°-360°&gt;</translation>
    </message>
    <message>
        <source>%1数値入力エラー</source>
        <translation>%1: not a number</translation>
    </message>
    <message>
        <source>波長表示の最短波長値が設定範囲外です。 (%1&lt;= 設定値 &lt;=%2)</source>
        <translation>The shortest wavelength shown is out of range. (%1 ≤ value ≤ %2)</translation>
    </message>
    <message>
        <source>波長表示の最長波長値が設定範囲外です。 (%1&lt;= 設定値 &lt;=%2)</source>
        <translation>The longest wavelength shown is out of range. (%1 ≤ value ≤ %2)</translation>
    </message>
    <message>
        <source>波長表示の幅が範囲を越えています。 (20 ≦ 設定値 ≦ 401)</source>
        <translation>The width of the wavelengths shown is out of range. (20 ≤ value ≤ 401)</translation>
    </message>
    <message>
        <source>波長の目盛り間隔が設定範囲を越えています。 (5 ≦ 設定値 ≦ 1000)</source>
        <translation>The tick interval of the wavelength is out of range. (5 ≤ value ≤ 1000)</translation>
    </message>
    <message>
        <source>反射率の最小値の設定範囲を越えています。 (0 ≦ 設定値 ≦ 100)</source>
        <translation>The minimum of the reflectance is out of range. (0 ≤ value ≤ 100)</translation>
    </message>
    <message>
        <source>反射率の最大値の設定範囲を越えています。 (0.01 ≦ 設定値 ≦ 100)</source>
        <translation>The maximum of the reflectance is out of range. (0.01 ≤ value ≤ 100)</translation>
    </message>
    <message>
        <source>反射率の目盛り間隔が設定範囲を越えています。 (最大目盛り本数 100)</source>
        <translation>The tick interval of the reflectance is out of range. (at most 100 ticks)</translation>
    </message>
    <message>
        <source>ﾃｷｽﾄ表示ｽﾃｯﾌﾟが設定範囲を越えています。 (1≦ 設定値 ≦ 100)</source>
        <translation>The step of the text view is out of range. (1 ≤ value ≤ 100)</translation>
    </message>
    <message>
        <source>ﾃｷｽﾄ表示の表示ｽﾃｯﾌﾟが設定範囲を越えています。 (1 ≦ 設定値 ≦ 100)</source>
        <translation>The display step of the text view is out of range. (1 ≤ value ≤ 100)</translation>
    </message>
    <message>
        <source>平均反射率の最短波長値が設定範囲外です。 (%1&lt;= 設定値 &lt;=%2)</source>
        <translation>The shortest wavelength of the average reflectance is out of range. (%1 ≤ value ≤ %2)</translation>
    </message>
    <message>
        <source>平均反射率の最長波長値が設定範囲外です。 (%1&lt;= 設定値 &lt;=%2)</source>
        <translation>The longest wavelength of the average reflectance is out of range. (%1 ≤ value ≤ %2)</translation>
    </message>
    <message>
        <source>平均反射率の幅が範囲を越えています。 (1 ≦ 設定値 ≦ 401)</source>
        <translation>The width of the average reflectance is out of range. (1 ≤ value ≤ 401)</translation>
    </message>
    <message>
        <source>ﾃﾞｰﾀが入力できません。再入力して下さい。</source>
        <translation>The data cannot be entered. Please enter them again.</translation>
    </message>
    <message>
        <source>ﾌｧｲﾙに保存できない文字が含まれています。<byte value="xd"/><byte value="xd"/>%1</source>
        <translation>There are characters that the file cannot hold.<byte value="xd"/><byte value="xd"/>%1</translation>
    </message>
    <message>
        <source>試料Noのｺﾝﾏは、CSVﾌｧｲﾙを開くときに列の区切りとして読まれます。<byte value="xd"/><byte value="xd"/>%1</source>
        <translation>A comma in a sample No. is read as a column separator when the CSV file is opened.<byte value="xd"/><byte value="xd"/>%1</translation>
    </message>
    <message>
        <source>ｻﾝﾌﾟﾘﾝｸﾞ時間が設定範囲を越えています。 (30 ≦ 設定値 ≦ 10000)</source>
        <translation>The sampling time is out of range. (30 ≤ value ≤ 10000)</translation>
    </message>
    <message>
        <source>取り込み平均回数が設定範囲を越えています。 (1 ≦ 設定値 ≦ 16)</source>
        <translation>The averaging count is out of range. (1 ≤ value ≤ 16)</translation>
    </message>
    <message>
        <source>ｷｬﾘﾌﾞﾚｰｼｮﾝのｼﾌﾄ値が設定範囲を越えています。 (0 ≦ 設定値 ≦ 7)</source>
        <translation>The calibration shift is out of range. (0 ≤ value ≤ 7)</translation>
    </message>
    <message>
        <source>この設定は、再起動を含め次の測定から有効になります。<byte value="xd"/><byte value="xd"/>ｷｬﾘﾌﾞﾚｰｼｮﾝ･ﾌｧｲﾙ名:%1</source>
        <translation>This setting takes effect from the next measurement on, also after a restart.<byte value="xd"/><byte value="xd"/>Calibration file: %1</translation>
    </message>
    <message>
        <source>余白が設定範囲を越えています。 (0 ≦ 設定値 ≦ 50)</source>
        <translation>The margin is out of range. (0 ≤ value ≤ 50)</translation>
    </message>
    <message>
        <source>余白が大きすぎます。 (印刷範囲は縦横とも100mm以上)</source>
        <translation>The margins are too large. (the printed area has to be at least 100mm each way)</translation>
    </message>
    <message>
        <source>ﾌﾟﾘﾝﾀが見つかりません。<byte value="xd"/><byte value="xd"/>%1</source>
        <translation>The printer was not found.<byte value="xd"/><byte value="xd"/>%1</translation>
    </message>
    <message>
        <source>印刷でｴﾗｰが発生しました。<byte value="xd"/><byte value="xd"/>%1</source>
        <translation>An error occurred while printing.<byte value="xd"/><byte value="xd"/>%1</translation>
    </message>
    <message>
        <source>ｼｽﾃﾑのｴﾗｰ:</source>
        <translation>System error: </translation>
    </message>
    <message>
        <source>ﾃﾞｨｽｸに空きがありません。</source>
        <translation>The disk is full.</translation>
    </message>
    <message>
        <source>書き込みの許可がありません。</source>
        <translation>Writing is not permitted.</translation>
    </message>
    <message>
        <source>読み取り専用のﾃﾞｨｽｸです。</source>
        <translation>The disk is read-only.</translation>
    </message>
    <message>
        <source>ﾌｫﾙﾀﾞがありません。</source>
        <translation>The folder does not exist.</translation>
    </message>
    <message>
        <source>反射率</source>
        <translation>Reflectance</translation>
    </message>
    <message>
        <source>平均反射率</source>
        <translation>Average reflectance</translation>
    </message>
    <message>
        <source>視感反射率</source>
        <translation>Luminous reflectance</translation>
    </message>
    <message>
        <source>波長値</source>
        <translation>Wavelength value</translation>
    </message>
    <message>
        <source>ピーク</source>
        <translation>Peak</translation>
    </message>
    <message>
        <source>ボトム</source>
        <translation>Bottom</translation>
    </message>
    <message>
        <source>クロマ</source>
        <translation>Chroma</translation>
    </message>
    <message>
        <source>色相角</source>
        <translation>Hue angle</translation>
    </message>
    <message>
        <source>基準値C*</source>
        <translation>Marker C*</translation>
    </message>
    <message>
        <source>基準値h°</source>
        <translation>Marker h°</translation>
    </message>
    <message>
        <source>移動範囲が上限を超えている</source>
        <translation>moving range above its upper limit</translation>
    </message>
    <message>
        <source>440 nm より下は外挿</source>
        <translation>extrapolated below 440 nm</translation>
    </message>
    <message>
        <source>%1 は他のプログラムが使用中です: %2</source>
        <translation>%1 is in use by another program: %2</translation>
    </message>
    <message>
        <source>%1 という装置がありません。ケーブルとポート番号を確認して下さい。</source>
        <translation>There is no device %1. Please check the cable and the port number.</translation>
    </message>
    <message>
        <source>%1 を使う権限がありません。グループ %2 のユーザーだけが使えます。</source>
        <translation>No permission to use %1. Only users of the group %2 may use it.</translation>
    </message>
    <message>
        <source>%1 をシリアルポートとして開けません。</source>
        <translation>%1 cannot be opened as a serial port.</translation>
    </message>
    <message>
        <source>%1 は開けましたが、コントローラから正しい応答がありません。電源とケーブルを確認して下さい。</source>
        <translation>%1 was opened, but the controller does not answer correctly. Please check its power and the cable.</translation>
    </message>
    <message>
        <source>ｲﾝﾃﾞｯｸｽ</source>
        <translation>Index</translation>
    </message>
    <message>
        <source>ﾘﾌｧﾚﾝｽ</source>
        <translation>Reference</translation>
    </message>
    <message>
        <source>膜厚%1</source>
        <translation>Thickness %1</translation>
    </message>
    <message>
        <source>倍率</source>
        <translation>Scale</translation>
    </message>
    <message>
        <source>オフセット</source>
        <translation>Offset</translation>
    </message>
    <message>
        <source>膜厚むら</source>
        <translation>Thickness nonuniformity</translation>
    </message>
    <message>
        <source>屈折率</source>
        <translation>Refractive index</translation>
    </message>
    <message>
        <source>%1と%2の相関が高く、区別できません。</source>
        <translation>%1 and %2 are highly correlated and cannot be told apart.</translation>
    </message>
    <message>
        <source>倍率が限界に達しました。</source>
        <translation>The scale has reached its limit.</translation>
    </message>
    <message>
        <source>層は1～4層で、屈折率は正の数でなければなりません。</source>
        <translation>There have to be 1 to 4 layers, with positive refractive indices.</translation>
    </message>
    <message>
        <source>膜厚の範囲は0～60000nmで、下限は上限以下でなければなりません。</source>
        <translation>Film thicknesses have to be within 0 to 60000 nm, the lower limit not above the upper one.</translation>
    </message>
    <message>
        <source>波長範囲は440～840nmで、20点以上必要です。</source>
        <translation>The wavelengths have to be within 440 to 840 nm, with 20 points or more.</translation>
    </message>
    <message>
        <source>バンド幅、不確かさ、信頼水準のいずれかが範囲外です。</source>
        <translation>The bandwidth, an uncertainty or the confidence level is out of range.</translation>
    </message>
    <message>
        <source>反射率データが無効です。</source>
        <translation>The reflectance data are not valid.</translation>
    </message>
    <message>
        <source>膜構成ファイルを読み込めません。</source>
        <translation>The film stack file cannot be read.</translation>
    </message>
    <message>
        <source>膜構成ファイルではありません。</source>
        <translation>This is not a film stack file.</translation>
    </message>
    <message>
        <source>新しい版の膜構成ファイルです。</source>
        <translation>The film stack file is of a newer version.</translation>
    </message>
    <message>
        <source>膜構成ファイルの値が正しくありません。</source>
        <translation>A value in the film stack file is not valid.</translation>
    </message>
    <message>
        <source>材料は数値、式、または .ind・.nk ファイルで指定してください。</source>
        <translation>A material is given by a number, a formula, or an .ind or .nk file.</translation>
    </message>
    <message>
        <source>材料のファイルを読み込めません。</source>
        <translation>The file of the material cannot be read.</translation>
    </message>
    <message>
        <source>材料の表が440～840nmを含んでいません。</source>
        <translation>The table of the material does not cover 440 to 840 nm.</translation>
    </message>
    <message>
        <source>材料の屈折率は0より大きく、吸収は0以上で、どちらも100以下でなければなりません。</source>
        <translation>The refractive index of a material must be above 0, its absorption at least 0, and both at most 100.</translation>
    </message>
    <message>
        <source>測定範囲の端から7nm以内の極値を数えています。</source>
        <translation>An extremum within 7 nm of the ends of the measured range is counted.</translation>
    </message>
    <message>
        <source>同じ極値を2回数えているか、同じ種類の極値が続いています。</source>
        <translation>An extremum is counted twice, or extrema of the same kind follow each other.</translation>
    </message>
    <message>
        <source>極値の間隔が1枚の膜の干渉次数と合いません。</source>
        <translation>The spacing of the extrema does not fit the interference orders of one film.</translation>
    </message>
    <message>
        <source>干渉縞がノイズより高くありません。</source>
        <translation>The fringes are not higher than the noise.</translation>
    </message>
    <message>
        <source>干渉縞全体から求めた膜厚と一致しません。</source>
        <translation>This does not agree with the thickness from the whole fringes.</translation>
    </message>
    <message>
        <source>条件１</source>
        <translation>Condition 1</translation>
    </message>
    <message>
        <source>条件２</source>
        <translation>Condition 2</translation>
    </message>
    <message>
        <source>条件３</source>
        <translation>Condition 3</translation>
    </message>
    <message>
        <source>条件４</source>
        <translation>Condition 4</translation>
    </message>
    <message>
        <source>条件５</source>
        <translation>Condition 5</translation>
    </message>
    <message>
        <source>条件６</source>
        <translation>Condition 6</translation>
    </message>
    <message>
        <source>条件７</source>
        <translation>Condition 7</translation>
    </message>
    <message>
        <source>条件８</source>
        <translation>Condition 8</translation>
    </message>
    <message>
        <source>条件９</source>
        <translation>Condition 9</translation>
    </message>
    <message>
        <source>条件１０</source>
        <translation>Condition 10</translation>
    </message>
    <message>
        <source>反射率:OK</source>
        <translation>Refl.: OK</translation>
    </message>
    <message>
        <source>反射率:NG</source>
        <translation>Refl.: NG</translation>
    </message>
    <message>
        <source>平均反射率:OK</source>
        <translation>Avg. refl.: OK</translation>
    </message>
    <message>
        <source>平均反射率:NG</source>
        <translation>Avg. refl.: NG</translation>
    </message>
    <message>
        <source>視感反射率:OK</source>
        <translation>Lum. refl.: OK</translation>
    </message>
    <message>
        <source>視感反射率:NG</source>
        <translation>Lum. refl.: NG</translation>
    </message>
    <message>
        <source>波長:OK</source>
        <translation>Wavelength: OK</translation>
    </message>
    <message>
        <source>波長:NG</source>
        <translation>Wavelength: NG</translation>
    </message>
    <message>
        <source>クロマC*:OK</source>
        <translation>Chroma C*: OK</translation>
    </message>
    <message>
        <source>クロマC*:NG</source>
        <translation>Chroma C*: NG</translation>
    </message>
    <message>
        <source>色相角h[deg]:OK</source>
        <translation>Hue h[deg]: OK</translation>
    </message>
    <message>
        <source>色相角h[deg]:NG</source>
        <translation>Hue h[deg]: NG</translation>
    </message>
    <message>
        <source>反射率規格</source>
        <translation>Reflectance standard</translation>
    </message>
    <message>
        <source>平均反射率規格</source>
        <translation>Average reflectance standard</translation>
    </message>
    <message>
        <source>波長値規格</source>
        <translation>Wavelength standard</translation>
    </message>
    <message>
        <source>クロマ規格</source>
        <translation>Chroma standard</translation>
    </message>
    <message>
        <source>色相角規格</source>
        <translation>Hue angle standard</translation>
    </message>
    <message>
        <source>視感反射率規格</source>
        <translation>Luminous reflectance standard</translation>
    </message>
    <message>
        <source>数値でない値、または大きすぎる値があります。</source>
        <translation>A value is not a number, or is too large.</translation>
    </message>
    <message>
        <source>データの数が足りません。</source>
        <translation>There are too few data.</translation>
    </message>
    <message>
        <source>すべての値が同じで、ばらつきがありません。</source>
        <translation>All values are equal: there is no variation.</translation>
    </message>
    <message>
        <source>規格の上限も下限もありません。</source>
        <translation>The tolerance has neither an upper nor a lower limit.</translation>
    </message>
    <message>
        <source>規格の下限が上限より小さくありません。</source>
        <translation>The lower limit of the tolerance is not below the upper limit.</translation>
    </message>
    <message>
        <source>部品、測定者、繰返しはそれぞれ2以上必要です。</source>
        <translation>At least two parts, operators and repetitions each are needed.</translation>
    </message>
    <message>
        <source>測定回数が部品と測定者のすべての組で同じではありません。</source>
        <translation>The number of measurements differs among the pairs of part and operator.</translation>
    </message>
    <message>
        <source>指定された値が範囲外です。</source>
        <translation>A given value is out of range.</translation>
    </message>
    <message>
        <source>1点が3σの外にある</source>
        <translation>1 point beyond 3σ</translation>
    </message>
    <message>
        <source>連続する3点中2点が同じ側で2σの外にある</source>
        <translation>2 of 3 points in a row beyond 2σ on the same side</translation>
    </message>
    <message>
        <source>連続する5点中4点が同じ側で1σの外にある</source>
        <translation>4 of 5 points in a row beyond 1σ on the same side</translation>
    </message>
    <message>
        <source>連続する8点が中心線の同じ側にある</source>
        <translation>8 points in a row on the same side of the centre line</translation>
    </message>
    <message>
        <source>連続する9点が中心線の同じ側にある</source>
        <translation>9 points in a row on the same side of the centre line</translation>
    </message>
    <message>
        <source>連続する6点が増加または減少している</source>
        <translation>6 points in a row increasing or decreasing</translation>
    </message>
    <message>
        <source>連続する14点が交互に増減している</source>
        <translation>14 points in a row alternating up and down</translation>
    </message>
    <message>
        <source>連続する15点が1σの内にある</source>
        <translation>15 points in a row within 1σ</translation>
    </message>
    <message>
        <source>連続する8点が1σの外にある</source>
        <translation>8 points in a row beyond 1σ</translation>
    </message>
    <message>
        <source>ｽﾛｯﾄ</source>
        <translation>Slot</translation>
    </message>
    <message>
        <source>試料No</source>
        <translation>Sample No.</translation>
    </message>
    <message>
        <source>基準</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>光源</source>
        <translation>Illuminant</translation>
    </message>
    <message>
        <source>視野</source>
        <translation>Observer</translation>
    </message>
    <message>
        <source>ｺﾋﾟｰ(&amp;C)</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>保存(&amp;S)</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>光源: %1   視野: %2°</source>
        <translation>Illuminant: %1   Observer: %2°</translation>
    </message>
    <message>
        <source>基準:</source>
        <translation>Standard:</translation>
    </message>
    <message>
        <source>視野:</source>
        <translation>Observer:</translation>
    </message>
    <message>
        <source>光源:</source>
        <translation>Illuminant:</translation>
    </message>
    <message>
        <source>累積表示</source>
        <translation>Accumulate</translation>
    </message>
    <message>
        <source>ｸﾘｱ</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>最後の累積データを取り消します。</source>
        <translation>Removes the last accumulated data.</translation>
    </message>
    <message>
        <source>累積色度図</source>
        <translation>Diagram</translation>
    </message>
    <message>
        <source>測色値 (Mes%1)</source>
        <translation>Colour values (Mes%1)</translation>
    </message>
    <message>
        <source>累積ﾃﾞｰﾀ･ﾌｧｲﾙ(*.stc)|*.stc|</source>
        <translation>Accumulated data file(*.stc)|*.stc|</translation>
    </message>
    <message>
        <source>読み込み</source>
        <translation>Load</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>全ｸﾘｱ</source>
        <translation>Clear all</translation>
    </message>
    <message>
        <source>累積色度図表示</source>
        <translation>Accumulated chromaticity diagram</translation>
    </message>
    <message>
        <source>累積数  %1 / %2</source>
        <translation>Accumulated  %1 / %2</translation>
    </message>
    <message>
        <source>累積ﾃﾞｰﾀ･ﾌｧｲﾙを開く</source>
        <translation>Open accumulated data file</translation>
    </message>
    <message>
        <source>累積ﾃﾞｰﾀ･ﾌｧｲﾙの保存</source>
        <translation>Save accumulated data file</translation>
    </message>
    <message>
        <source>XYZ色度図</source>
        <translation>xy chromaticity diagram</translation>
    </message>
    <message>
        <source>L*a*b色度図</source>
        <translation>L*a*b* diagram</translation>
    </message>
    <message>
        <source>はい(&amp;Y)</source>
        <translation>&amp;Yes</translation>
    </message>
    <message>
        <source>いいえ(&amp;N)</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>ｷｬﾝｾﾙ</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>詳細</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>ｸﾞﾗﾌの保存</source>
        <translation>Save graph</translation>
    </message>
    <message>
        <source>ｸﾞﾗﾌをｺﾋﾟｰ</source>
        <translation>Copy graph</translation>
    </message>
    <message>
        <source>ｸﾞﾗﾌの保存...</source>
        <translation>Save graph...</translation>
    </message>
    <message>
        <source>備考１</source>
        <translation>Remark 1</translation>
    </message>
    <message>
        <source>備考２</source>
        <translation>Remark 2</translation>
    </message>
    <message>
        <source>測定日</source>
        <translation>Measured on</translation>
    </message>
    <message>
        <source>ﾌｧｲﾙを開く</source>
        <translation>Open file</translation>
    </message>
    <message>
        <source>ﾃﾞｰﾀ･ﾌｧｲﾙ(*.csv,*.dat)|*.csv;*.dat|</source>
        <translation>Data file(*.csv,*.dat)|*.csv;*.dat|</translation>
    </message>
    <message>
        <source>ﾌｧｲﾙの名前を付けて保存</source>
        <translation>Save file as</translation>
    </message>
    <message>
        <source>環境ﾌｧｲﾙを開く</source>
        <translation>Open environment file</translation>
    </message>
    <message>
        <source>環境ﾃﾞｰﾀ･ﾌｧｲﾙ(*.env)|*.env|</source>
        <translation>Environment data file(*.env)|*.env|</translation>
    </message>
    <message>
        <source>全てのﾌｧｲﾙ(*.*)|*.*|</source>
        <translation>All files(*.*)|*.*|</translation>
    </message>
    <message>
        <source>環境ﾌｧｲﾙの名前を付けて保存</source>
        <translation>Save environment file as</translation>
    </message>
    <message>
        <source>波長</source>
        <translation>Wavelength</translation>
    </message>
    <message>
        <source>ｶｰｿﾙを短波長側へ</source>
        <translation>Cursor to shorter wavelengths</translation>
    </message>
    <message>
        <source>ｶｰｿﾙを長波長側へ</source>
        <translation>Cursor to longer wavelengths</translation>
    </message>
    <message>
        <source>ｼﾞｬﾝﾌﾟ</source>
        <translation>Jump</translation>
    </message>
    <message>
        <source>ｼﾞｬﾝﾌﾟ設定</source>
        <translation>Jump</translation>
    </message>
    <message>
        <source>移動先の波長を指定して下さい</source>
        <translation>Please give the wavelength to go to</translation>
    </message>
    <message>
        <source>光量 [count]</source>
        <translation>Light intensity [count]</translation>
    </message>
    <message>
        <source>飽和 %1</source>
        <translation>Saturation %1</translation>
    </message>
    <message>
        <source>反射率 [%]</source>
        <translation>Reflectance [%]</translation>
    </message>
    <message>
        <source>理論反射率</source>
        <translation>Theoretical reflectance</translation>
    </message>
    <message>
        <source>膜屈折率</source>
        <translation>Film refractive index</translation>
    </message>
    <message>
        <source>基板屈折率</source>
        <translation>Substrate refractive index</translation>
    </message>
    <message>
        <source>波長 [nm]</source>
        <translation>Wavelength [nm]</translation>
    </message>
    <message>
        <source>ｺﾋﾟｰ</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>全て選択</source>
        <translation>Select all</translation>
    </message>
    <message>
        <source>ﾌｧｲﾙ名</source>
        <translation>File name</translation>
    </message>
    <message>
        <source>ﾃﾞｰﾀｲﾝﾃﾞｯｸｽ</source>
        <translation>Data index</translation>
    </message>
    <message>
        <source>膜厚 </source>
        <translation>Film thickness </translation>
    </message>
    <message>
        <source>膜厚ｸﾞﾗﾌ</source>
        <translation>Thickness graph</translation>
    </message>
    <message>
        <source>全ﾃﾞｰﾀ数 %1    膜厚 %2</source>
        <translation>Data: %1    Film thickness: %2</translation>
    </message>
    <message>
        <source>波長[nm]</source>
        <translation>λ[nm]</translation>
    </message>
    <message>
        <source>反射率[%]</source>
        <translation>Reflectance[%]</translation>
    </message>
    <message>
        <source>波長リスト</source>
        <translation>Wavelength list</translation>
    </message>
    <message>
        <source>ﾘﾌｧﾚﾝｽ設定</source>
        <translation>Reference settings</translation>
    </message>
    <message>
        <source>ﾘﾌｧﾚﾝｽ･ﾃﾞｰﾀﾌｧｲﾙ(*.ref)|*.ref|</source>
        <translation>Reference data file(*.ref)|*.ref|</translation>
    </message>
    <message>
        <source>膜厚設定</source>
        <translation>Film thickness settings</translation>
    </message>
    <message>
        <source>ｺｰﾄ屈折率設定</source>
        <translation>Coat refractive index</translation>
    </message>
    <message>
        <source>ｲﾝﾃﾞｯｸｽ･ﾃﾞｰﾀﾌｧｲﾙ(*.ind)|*.ind|</source>
        <translation>Index data file(*.ind)|*.ind|</translation>
    </message>
    <message>
        <source>固定ﾘﾌｧﾚﾝｽ反射率</source>
        <translation>Constant reference reflectance</translation>
    </message>
    <message>
        <source>Schott分散式ﾊﾟﾗﾒｰﾀ</source>
        <translation>Schott formula parameters</translation>
    </message>
    <message>
        <source>Sellmeier分散式ﾊﾟﾗﾒｰﾀ</source>
        <translation>Sellmeier formula parameters</translation>
    </message>
    <message>
        <source>分散ﾃﾞｰﾀﾌｧｲﾙ</source>
        <translation>Dispersion data file</translation>
    </message>
    <message>
        <source>膜厚測定</source>
        <translation>Thickness</translation>
    </message>
    <message>
        <source>分散設定</source>
        <translation>Dispersion</translation>
    </message>
    <message>
        <source>固定値</source>
        <translation>Constant</translation>
    </message>
    <message>
        <source>分散式１</source>
        <translation>Formula 1</translation>
    </message>
    <message>
        <source>分散式２</source>
        <translation>Formula 2</translation>
    </message>
    <message>
        <source>ﾌｧｲﾙ</source>
        <translation>File</translation>
    </message>
    <message>
        <source>固定値設定</source>
        <translation>Constant value</translation>
    </message>
    <message>
        <source>ﾌｧｲﾙ設定</source>
        <translation>From file</translation>
    </message>
    <message>
        <source>基板屈折率を使用し計算</source>
        <translation>Calculate with the substrate refractive index</translation>
    </message>
    <message>
        <source>全波長で同じ値を使います。</source>
        <translation>Uses the same value at all wavelengths.</translation>
    </message>
    <message>
        <source>Schottの分散式で波長ごとに計算します。</source>
        <translation>Calculates each wavelength by the Schott formula.</translation>
    </message>
    <message>
        <source>Sellmeierの分散式で波長ごとに計算します。</source>
        <translation>Calculates each wavelength by the Sellmeier formula.</translation>
    </message>
    <message>
        <source>ﾌｧｲﾙの値を波長ごとに使います。</source>
        <translation>Uses the values of the file at each wavelength.</translation>
    </message>
    <message>
        <source>基板の屈折率と測定した反射率から膜の屈折率を計算します (Type A、Type B)。</source>
        <translation>Calculates the refractive index of the film from that of the substrate and the measured reflectance (Type A, Type B).</translation>
    </message>
    <message>
        <source>自動ｽｹｰﾙ</source>
        <translation>Automatic scale</translation>
    </message>
    <message>
        <source>膜厚ｸﾞﾗﾌ設定</source>
        <translation>Thickness graph settings</translation>
    </message>
    <message>
        <source>軸の範囲を履歴の値に合わせます。</source>
        <translation>Fits the range of the axis to the values of the history.</translation>
    </message>
    <message>
        <source>膜厚ｽｹｰﾙ</source>
        <translation>Thickness scale</translation>
    </message>
    <message>
        <source>最大値</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>最小値</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>印刷</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>全ﾃﾞｰﾀ･ｸﾘｱ</source>
        <translation>Clear all data</translation>
    </message>
    <message>
        <source>設定</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>ｸﾞﾗﾌ設定</source>
        <translation>Graph settings</translation>
    </message>
    <message>
        <source>ﾃﾞｰﾀ情報</source>
        <translation>Data information</translation>
    </message>
    <message>
        <source>全ﾃﾞｰﾀ数</source>
        <translation>Number of data</translation>
    </message>
    <message>
        <source>膜厚</source>
        <translation>Film thickness</translation>
    </message>
    <message>
        <source>前のﾃﾞｰﾀ</source>
        <translation>Previous data</translation>
    </message>
    <message>
        <source>次のﾃﾞｰﾀ</source>
        <translation>Next data</translation>
    </message>
    <message>
        <source>追加</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>削除</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>膜厚測定を可能にする</source>
        <translation>Enable the film thickness measurement</translation>
    </message>
    <message>
        <source>測定画面に膜厚の欄を出し、干渉の極値から膜厚を計算します。</source>
        <translation>Shows the film thickness in the measuring window and calculates it from the interference extrema.</translation>
    </message>
    <message>
        <source>測定設定</source>
        <translation>Measurement</translation>
    </message>
    <message>
        <source>測定タイプ</source>
        <translation>Type of measurement</translation>
    </message>
    <message>
        <source>長波長側の隣り合う2個の極小から計算します。</source>
        <translation>Calculates from the two neighbouring minima at the longest wavelengths.</translation>
    </message>
    <message>
        <source>最初と最後の極大から、その間の極大の数を使って計算します。</source>
        <translation>Calculates from the first and the last maximum and the number of maxima between them.</translation>
    </message>
    <message>
        <source>最初と最後の極値から、極大と極小の数を使って計算します。基板屈折率とは組み合わせられません。</source>
        <translation>Calculates from the first and the last extremum and the number of maxima and minima. It cannot be combined with the substrate refractive index.</translation>
    </message>
    <message>
        <source>物理膜厚</source>
        <translation>Physical thickness</translation>
    </message>
    <message>
        <source>光学膜厚</source>
        <translation>Optical thickness</translation>
    </message>
    <message>
        <source>膜の厚さ d を [nm] で示します。</source>
        <translation>Gives the thickness d of the film in [nm].</translation>
    </message>
    <message>
        <source>屈折率と厚さの積 nd を [nd] で示します。</source>
        <translation>Gives nd, refractive index times thickness, in [nd].</translation>
    </message>
    <message>
        <source>自動測定</source>
        <translation>Automatic</translation>
    </message>
    <message>
        <source>選択ｽﾛｯﾄの膜厚を計算</source>
        <translation>Calculates the film thickness of the selected slot</translation>
    </message>
    <message>
        <source>測定後に膜厚を計算</source>
        <translation>Calculates the film thickness after each measurement</translation>
    </message>
    <message>
        <source>n%1：</source>
        <translation>n%1:</translation>
    </message>
    <message>
        <source>PDFを作れませんでした。</source>
        <translation>The PDF could not be made.</translation>
    </message>
    <message>
        <source>PDFﾌｧｲﾙ</source>
        <translation>PDF file</translation>
    </message>
    <message>
        <source>横</source>
        <translation>Landscape</translation>
    </message>
    <message>
        <source>縦</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>固定値 %1 %</source>
        <translation>Constant %1 %</translation>
    </message>
    <message>
        <source>Schott分散式</source>
        <translation>Schott formula</translation>
    </message>
    <message>
        <source>Sellmeier分散式</source>
        <translation>Sellmeier formula</translation>
    </message>
    <message>
        <source>反射率測定結果</source>
        <translation>Reflectance measurement</translation>
    </message>
    <message>
        <source>測定者</source>
        <translation>Operator</translation>
    </message>
    <message>
        <source>環境ﾌｧｲﾙ</source>
        <translation>Env. file</translation>
    </message>
    <message>
        <source>日付</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>規格ﾌｧｲﾙ</source>
        <translation>Std. file</translation>
    </message>
    <message>
        <source>測色条件</source>
        <translation>Colour</translation>
    </message>
    <message>
        <source>光源 %1&#x3000;視野 %2°&#x3000;平均 %3-%4 nm</source>
        <translation>Illuminant %1  Observer %2°  Average %3-%4 nm</translation>
    </message>
    <message>
        <source>ﾃﾞｰﾀﾌｧｲﾙ</source>
        <translation>Data file</translation>
    </message>
    <message>
        <source>未保存</source>
        <translation>not saved</translation>
    </message>
    <message>
        <source>測定条件</source>
        <translation>Sampling</translation>
    </message>
    <message>
        <source>%1 ms × %2回</source>
        <translation>%1 ms × %2</translation>
    </message>
    <message>
        <source>色度図を加える</source>
        <translation>Add the chromaticity diagram</translation>
    </message>
    <message>
        <source>ﾌﾟﾚﾋﾞｭｰ</source>
        <translation>Preview</translation>
    </message>
    <message>
        <source>見出し</source>
        <translation>Heading</translation>
    </message>
    <message>
        <source>ﾀｲﾄﾙ</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>印刷ﾃﾞｰﾀ</source>
        <translation>Data to print</translation>
    </message>
    <message>
        <source>選択ﾃﾞｰﾀ (Mes%1)</source>
        <translation>Selected data (Mes%1)</translation>
    </message>
    <message>
        <source>全ﾃﾞｰﾀ</source>
        <translation>All data</translation>
    </message>
    <message>
        <source>印刷内容</source>
        <translation>Contents</translation>
    </message>
    <message>
        <source>ｸﾞﾗﾌ</source>
        <translation>Graph</translation>
    </message>
    <message>
        <source>ﾃｷｽﾄ</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>ｸﾞﾗﾌとﾃｷｽﾄ</source>
        <translation>Graph and text</translation>
    </message>
    <message>
        <source>ﾃｷｽﾄｽﾃｯﾌﾟ</source>
        <translation>Text step</translation>
    </message>
    <message>
        <source>印刷設定</source>
        <translation>Print setup</translation>
    </message>
    <message>
        <source>ﾌﾟﾘﾝﾀ</source>
        <translation>Printer</translation>
    </message>
    <message>
        <source>部数</source>
        <translation>Copies</translation>
    </message>
    <message>
        <source>前頁</source>
        <translation>Previous</translation>
    </message>
    <message>
        <source>次頁</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>印刷ﾌﾟﾚﾋﾞｭｰ</source>
        <translation>Print preview</translation>
    </message>
    <message>
        <source>全体</source>
        <translation>Whole page</translation>
    </message>
    <message>
        <source>幅に合わせる</source>
        <translation>Fit width</translation>
    </message>
    <message>
        <source>ﾌﾟﾘﾝﾀ名</source>
        <translation>Printer name</translation>
    </message>
    <message>
        <source>用紙</source>
        <translation>Paper</translation>
    </message>
    <message>
        <source>ｻｲｽﾞ</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>向き</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>左</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>上</source>
        <translation>Top</translation>
    </message>
    <message>
        <source>右</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>下</source>
        <translation>Bottom</translation>
    </message>
    <message>
        <source>余白 [mm]</source>
        <translation>Margins [mm]</translation>
    </message>
    <message>
        <source>平均[%]</source>
        <translation>Avg.[%]</translation>
    </message>
    <message>
        <source>視感[%]</source>
        <translation>Lum.[%]</translation>
    </message>
    <message>
        <source>～</source>
        <translation> - </translation>
    </message>
    <message>
        <source>%1点</source>
        <translation>%1 points</translation>
    </message>
    <message>
        <source>規格</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>試料</source>
        <translation>Samples</translation>
    </message>
    <message>
        <source>備考1</source>
        <translation>Remark 1</translation>
    </message>
    <message>
        <source>備考2</source>
        <translation>Remark 2</translation>
    </message>
    <message>
        <source>測定値</source>
        <translation>Measured values</translation>
    </message>
    <message>
        <source>上限 [%]</source>
        <translation>Upper limit [%]</translation>
    </message>
    <message>
        <source>下限 [%]</source>
        <translation>Lower limit [%]</translation>
    </message>
    <message>
        <source>合否判定</source>
        <translation>Judgement</translation>
    </message>
    <message>
        <source>クロマC*</source>
        <translation>Chroma C*</translation>
    </message>
    <message>
        <source>色相角h[deg]</source>
        <translation>Hue h[deg]</translation>
    </message>
    <message>
        <source>総合</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>ｷｬﾘﾌﾞﾚｰｼｮﾝ</source>
        <translation>Calibration</translation>
    </message>
    <message>
        <source>光量の波長をずらす量です (0～7 nm)。測定済みの光量にも、次の計算から使われます。</source>
        <translation>How far the wavelengths of the light intensity are shifted (0 to 7 nm). Light already measured takes it from the next calculation on.</translation>
    </message>
    <message>
        <source>ｼﾌﾄ値</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>表示設定</source>
        <translation>Display settings</translation>
    </message>
    <message>
        <source>表示波長</source>
        <translation>Wavelengths shown</translation>
    </message>
    <message>
        <source>ﾌﾙｽｹｰﾙ</source>
        <translation>Full scale</translation>
    </message>
    <message>
        <source>波長軸を440～840 nmにします。</source>
        <translation>Sets the wavelength axis to 440 to 840 nm.</translation>
    </message>
    <message>
        <source>最短波長</source>
        <translation>Shortest wavelength</translation>
    </message>
    <message>
        <source>最長波長</source>
        <translation>Longest wavelength</translation>
    </message>
    <message>
        <source>目盛り</source>
        <translation>Ticks</translation>
    </message>
    <message>
        <source>目盛り間隔</source>
        <translation>Tick interval</translation>
    </message>
    <message>
        <source>表示反射率</source>
        <translation>Reflectance shown</translation>
    </message>
    <message>
        <source>反射率軸を、表示中の曲線と規格に合わせます。</source>
        <translation>Fits the reflectance axis to the curves and standards shown.</translation>
    </message>
    <message>
        <source>最大</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>最小</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>自動目盛り</source>
        <translation>Automatic ticks</translation>
    </message>
    <message>
        <source>目盛りをきりのよい値に置きます。</source>
        <translation>Puts the ticks at round values.</translation>
    </message>
    <message>
        <source>ﾃｷｽﾄ表示</source>
        <translation>Text view</translation>
    </message>
    <message>
        <source>表示ｽﾃｯﾌﾟ</source>
        <translation>Display step</translation>
    </message>
    <message>
        <source>測定画面の色度図です。累積する色の値もこれで決まります。</source>
        <translation>The chromaticity diagram of the measuring window. It determines the colour values that are accumulated, too.</translation>
    </message>
    <message>
        <source>L*a*bｽｹｰﾙ</source>
        <translation>L*a*b scale</translation>
    </message>
    <message>
        <source>a*b*色度図の軸の端の値です。</source>
        <translation>The value at the ends of the axes of the a*b* diagram.</translation>
    </message>
    <message>
        <source>標準光源設定</source>
        <translation>Standard illuminant</translation>
    </message>
    <message>
        <source>測色値を計算する標準光源です。</source>
        <translation>The standard illuminant of the colour values.</translation>
    </message>
    <message>
        <source>視野設定</source>
        <translation>Observer</translation>
    </message>
    <message>
        <source>2度視野</source>
        <translation>2° observer</translation>
    </message>
    <message>
        <source>10度視野</source>
        <translation>10° observer</translation>
    </message>
    <message>
        <source>測色値を計算する等色関数の視野です。</source>
        <translation>The observer of the colour matching functions of the colour values.</translation>
    </message>
    <message>
        <source>ﾘﾌｧﾚﾝｽﾃﾞｰﾀ</source>
        <translation>Reference data</translation>
    </message>
    <message>
        <source>ﾘﾌｧﾚﾝｽﾃﾞｰﾀを表示する</source>
        <translation>Show the reference data</translation>
    </message>
    <message>
        <source>ﾘﾌｧﾚﾝｽ試料の理論反射率をｸﾞﾗﾌと表に加えます。</source>
        <translation>Adds the theoretical reflectance of the reference sample to the graph and the table.</translation>
    </message>
    <message>
        <source>ｶｰｿﾙ表示</source>
        <translation>Cursor</translation>
    </message>
    <message>
        <source>ｶｰｿﾙを表示する</source>
        <translation>Show the cursor</translation>
    </message>
    <message>
        <source>ｸﾞﾗﾌに波長のｶｰｿﾙを、その下に各曲線の値を示します。</source>
        <translation>Shows a wavelength cursor in the graph, and the values of the curves below it.</translation>
    </message>
    <message>
        <source>Min表示</source>
        <translation>Minimum mark</translation>
    </message>
    <message>
        <source>Min値に表示する</source>
        <translation>Mark the minimum</translation>
    </message>
    <message>
        <source>選択ｽﾛｯﾄの最小値の位置に、波長と値を示します。</source>
        <translation>Shows wavelength and value at the minimum of the selected slot.</translation>
    </message>
    <message>
        <source>ｻﾝﾌﾟﾘﾝｸﾞ設定</source>
        <translation>Sampling settings</translation>
    </message>
    <message>
        <source>ｻﾝﾌﾟﾘﾝｸﾞ</source>
        <translation>Sampling</translation>
    </message>
    <message>
        <source>取り込み平均回数</source>
        <translation>Averaging count</translation>
    </message>
    <message>
        <source>ｻﾝﾌﾟﾘﾝｸﾞ時間</source>
        <translation>Sampling time</translation>
    </message>
    <message>
        <source>一回の測定で取り込み、平均するﾗｲﾝ数です (1～16)。</source>
        <translation>The number of lines that one measurement takes and averages (1 to 16).</translation>
    </message>
    <message>
        <source>一ﾗｲﾝの積算時間です (30～20000 ms)。長いほど光量が増え、飽和に近づきます。</source>
        <translation>The integration time of a line (30 to 20000 ms). A longer one gathers more light and comes nearer to saturation.</translation>
    </message>
    <message>
        <source>一回の測定に %1 秒かかります。ｺﾝﾄﾛｰﾗの応答は %2 秒で打ち切られるため、測定できません。</source>
        <translation>One measurement takes %1 s. It cannot be made, because the controller&apos;s answer is awaited for %2 s only.</translation>
    </message>
    <message>
        <source>ﾊﾙﾄﾏﾝ分散式</source>
        <translation>Schott formula</translation>
    </message>
    <message>
        <source>ｾﾙﾏｲﾔ分散式</source>
        <translation>Sellmeier formula</translation>
    </message>
    <message>
        <source>基板反射率</source>
        <translation>Substrate reflectance</translation>
    </message>
    <message>
        <source>分散式ﾊﾟﾗﾒｰﾀ</source>
        <translation>Formula parameters</translation>
    </message>
    <message>
        <source>自動ｽｹｰﾘﾝｸﾞ</source>
        <translation>Automatic scaling</translation>
    </message>
    <message>
        <source>L*a*bﾒﾓﾘ</source>
        <translation>L*a*b scale</translation>
    </message>
    <message>
        <source>固定ﾘﾌｧﾚﾝｽ値</source>
        <translation>Constant reference value</translation>
    </message>
    <message>
        <source>ﾘﾌｧﾚﾝｽﾌｧｲﾙ名</source>
        <translation>Reference file</translation>
    </message>
    <message>
        <source>膜厚測定設定</source>
        <translation>Film thickness settings</translation>
    </message>
    <message>
        <source>物理膜厚(n)</source>
        <translation>Physical(n)</translation>
    </message>
    <message>
        <source>光学膜厚(nd)</source>
        <translation>Optical(nd)</translation>
    </message>
    <message>
        <source>屈折率設定</source>
        <translation>Refractive index</translation>
    </message>
    <message>
        <source>屈折率ﾌｧｲﾙ名</source>
        <translation>Refractive index file</translation>
    </message>
    <message>
        <source>基板ﾌｧｲﾙ名</source>
        <translation>Substrate file</translation>
    </message>
    <message>
        <source>平均最小波長</source>
        <translation>Average from wavelength</translation>
    </message>
    <message>
        <source>平均最大波長</source>
        <translation>Average to wavelength</translation>
    </message>
    <message>
        <source>ﾘﾌｧﾚﾝｽﾃﾞｰﾀを表示</source>
        <translation>Show the reference data</translation>
    </message>
    <message>
        <source>表示</source>
        <translation>shown</translation>
    </message>
    <message>
        <source>非表示</source>
        <translation>hidden</translation>
    </message>
    <message>
        <source>条件１が使用されていないため、反射率は判定されません。</source>
        <translation>Condition 1 is not used: the reflectance is not judged.</translation>
    </message>
    <message>
        <source>条件２が使用されていないため、条件１の波長だけが判定されます。</source>
        <translation>Condition 2 is not used: only the wavelength of condition 1 is judged.</translation>
    </message>
    <message>
        <source>%1の波長が%2より短いため、この区間は判定されません。</source>
        <translation>The wavelength of %1 is shorter than that of %2: this section is not judged.</translation>
    </message>
    <message>
        <source>%1の限界は、使用されていない%2の値から引かれます。</source>
        <translation>The limits of %1 are drawn from the values of %2, which is not used.</translation>
    </message>
    <message>
        <source>反射率を使用する</source>
        <translation>Use reflectance</translation>
    </message>
    <message>
        <source>上限</source>
        <translation>Upper limit</translation>
    </message>
    <message>
        <source>下限</source>
        <translation>Lower limit</translation>
    </message>
    <message>
        <source>表示する</source>
        <translation>Show</translation>
    </message>
    <message>
        <source>規格ﾌｧｲﾙを開く</source>
        <translation>Open standard file</translation>
    </message>
    <message>
        <source>規格ﾌｧｲﾙの名前を付けて保存</source>
        <translation>Save standard file as</translation>
    </message>
    <message>
        <source>平均反射率を使用する</source>
        <translation>Use average reflectance</translation>
    </message>
    <message>
        <source>視感反射率を使用する</source>
        <translation>Use luminous reflectance</translation>
    </message>
    <message>
        <source>波長値を使用する</source>
        <translation>Use wavelength value</translation>
    </message>
    <message>
        <source>クロマを使用する</source>
        <translation>Use chroma</translation>
    </message>
    <message>
        <source>色相角を使用する</source>
        <translation>Use hue angle</translation>
    </message>
    <message>
        <source>基準値･クロマ</source>
        <translation>Marker: chroma</translation>
    </message>
    <message>
        <source>基準値･色相角</source>
        <translation>Marker: hue angle</translation>
    </message>
    <message>
        <source>保存されていない規格は終了時に失われます。</source>
        <translation>Standards that have not been saved are lost at exit.</translation>
    </message>
    <message>
        <source>規格設定</source>
        <translation>Standard settings</translation>
    </message>
    <message>
        <source>&lt;範囲:0°-360°&gt;</source>
        <translation>&lt;range: 0°-360°&gt;</translation>
    </message>
    <message>
        <source>反射率が最大になる波長を判定します。</source>
        <translation>Judges the wavelength at which the reflectance is largest.</translation>
    </message>
    <message>
        <source>反射率が最小になる波長を判定します。</source>
        <translation>Judges the wavelength at which the reflectance is smallest.</translation>
    </message>
    <message>
        <source>読み込み(&amp;L)</source>
        <translation>&amp;Load</translation>
    </message>
    <message>
        <source>規格ﾌｧｲﾙ名</source>
        <translation>Standard file</translation>
    </message>
    <message>
        <source>反射率規格・</source>
        <translation>Reflectance standard, </translation>
    </message>
    <message>
        <source>膜厚</source>
        <comment>column</comment>
        <translation>Thickness</translation>
    </message>
    <message>
        <source>反射率</source>
        <comment>column</comment>
        <translation>Refl.</translation>
    </message>
    <message>
        <source>平均反射率</source>
        <comment>column</comment>
        <translation>Avg. refl.</translation>
    </message>
    <message>
        <source>視感反射率</source>
        <comment>column</comment>
        <translation>Lum. refl.</translation>
    </message>
    <message>
        <source>ｺﾝﾄﾛｰﾗ未接続のため
測定できません。</source>
        <translation>Cannot measure: the
controller is not connected.</translation>
    </message>
    <message>
        <source>記録に書き込めません。測定は続けられます。書き込めなかった記録は、書き込めるようになった時に書き込まれます。<byte value="xd"/><byte value="xd"/>%1</source>
        <translation>The records cannot be written. Measuring can go on. What could not be written is written as soon as it can be.<byte value="xd"/><byte value="xd"/>%1</translation>
    </message>
    <message>
        <source>ほかのﾌﾟﾛｸﾞﾗﾑが使用中です。</source>
        <translation>Another program is using it.</translation>
    </message>
    <message>
        <source>書き込みが許可されていません。</source>
        <translation>Writing is not permitted.</translation>
    </message>
    <message>
        <source>壊れているか、記録ではありません。</source>
        <translation>It is damaged, or holds no records.</translation>
    </message>
    <message>
        <source>ありません。</source>
        <translation>It does not exist.</translation>
    </message>
    <message>
        <source>ほかの種類か、新しいﾊﾞｰｼﾞｮﾝの記録です。</source>
        <translation>The records are of another kind or a newer version.</translation>
    </message>
    <message>
        <source>記録の決まりに反します。</source>
        <translation>It breaks a rule of the records.</translation>
    </message>
    <message>
        <source>ｻｰﾊﾞに接続できません。</source>
        <translation>The server cannot be reached.</translation>
    </message>
    <message>
        <source>この測定機の名前で、別の記録があります。</source>
        <translation>There are other records under the name of this instrument.</translation>
    </message>
    <message>
        <source>ｴﾗｰが発生しました。</source>
        <translation>An error occurred.</translation>
    </message>
    <message>
        <source>最近使ったﾌｧｲﾙ(&amp;R)</source>
        <translation>&amp;Recent files</translation>
    </message>
    <message>
        <source>ロット測定(&amp;M)</source>
        <translation>&amp;Measure a lot</translation>
    </message>
    <message>
        <source>記録(&amp;D)</source>
        <translation>Recor&amp;ds</translation>
    </message>
    <message>
        <source>膜厚ﾌｨｯﾄ(&amp;F)</source>
        <translation>Film &amp;fit</translation>
    </message>
    <message>
        <source>日常点検(&amp;D)</source>
        <translation>&amp;Daily check</translation>
    </message>
    <message>
        <source>管理図(&amp;C)</source>
        <translation>&amp;Control chart</translation>
    </message>
    <message>
        <source>測定システム解析(&amp;M)</source>
        <translation>&amp;Measurement system analysis</translation>
    </message>
    <message>
        <source>ﾌﾟﾛｸﾞﾗﾑ設定(&amp;P)</source>
        <translation>&amp;Program settings</translation>
    </message>
    <message>
        <source>良好</source>
        <translation>good</translation>
    </message>
    <message>
        <source>あいまい</source>
        <translation>ambiguous</translation>
    </message>
    <message>
        <source>不一致</source>
        <translation>poor</translation>
    </message>
    <message>
        <source>膜なし</source>
        <translation>no film</translation>
    </message>
    <message>
        <source>膜構成が試料に合っています。</source>
        <translation>The film stack fits the sample.</translation>
    </message>
    <message>
        <source>他の膜厚でもほぼ同じように合います。</source>
        <translation>Another thickness fits nearly as well.</translation>
    </message>
    <message>
        <source>残差がノイズよりはるかに大きく、膜構成が試料と合っていません。</source>
        <translation>The residual is far above the noise: the stack is not that of the sample.</translation>
    </message>
    <message>
        <source>膜が検出されません。</source>
        <translation>No film can be told.</translation>
    </message>
    <message>
        <source>条件</source>
        <translation>Conditions</translation>
    </message>
    <message>
        <source>倍率を求める (ﾘﾌｧﾚﾝｽの誤差)</source>
        <translation>Free scale (error of the reference)</translation>
    </message>
    <message>
        <source>一定の背景光を求める</source>
        <translation>Free constant background</translation>
    </message>
    <message>
        <source>層1の屈折率の係数を求める</source>
        <translation>Free factor for the index of layer 1</translation>
    </message>
    <message>
        <source>波長範囲 [nm]</source>
        <translation>Wavelength range [nm]</translation>
    </message>
    <message>
        <source>ﾊﾞﾝﾄﾞ幅 (半値全幅) [nm]</source>
        <translation>Bandwidth (FWHM) [nm]</translation>
    </message>
    <message>
        <source>波長の不確かさ [nm]</source>
        <translation>Wavelength uncertainty [nm]</translation>
    </message>
    <message>
        <source>屈折率の不確かさ [%]</source>
        <translation>Index uncertainty [%]</translation>
    </message>
    <message>
        <source>信頼水準 [%]</source>
        <translation>Confidence [%]</translation>
    </message>
    <message>
        <source>基板とﾘﾌｧﾚﾝｽが確かな場合に限ります。</source>
        <translation>Only where substrate and reference are trusted.</translation>
    </message>
    <message>
        <source>残差 [%]</source>
        <translation>Residual [%]</translation>
    </message>
    <message>
        <source>測定</source>
        <translation>Measured</translation>
    </message>
    <message>
        <source>ﾌｨｯﾄ</source>
        <translation>Fit</translation>
    </message>
    <message>
        <source>膜厚 [nm]</source>
        <translation>Thickness [nm]</translation>
    </message>
    <message>
        <source>ﾌｰﾘｴ振幅 [%]</source>
        <translation>Fourier amplitude [%]</translation>
    </message>
    <message>
        <source>層</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>材料</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>基板</source>
        <translation>Substrate</translation>
    </message>
    <message>
        <source>結果</source>
        <translation>Outcome</translation>
    </message>
    <message>
        <source>層%1</source>
        <translation>Layer %1</translation>
    </message>
    <message>
        <source>%1: %2 nm (既知)</source>
        <translation>%1: %2 nm (known)</translation>
    </message>
    <message>
        <source>%1: %2 ± %3 nm (ノイズ %4、波長 %5、屈折率 %6)</source>
        <translation>%1: %2 ± %3 nm (noise %4, wavelength %5, index %6)</translation>
    </message>
    <message>
        <source>倍率 %1   背景光 %2 %   膜厚むら %3 %   屈折率の係数 %4</source>
        <translation>Scale %1   background %2 %   nonuniformity %3 %   index factor %4</translation>
    </message>
    <message>
        <source>残差 %1 %   ノイズ %2 %</source>
        <translation>Residual %1 %   noise %2 %</translation>
    </message>
    <message>
        <source>次の極小: %1 nm (残差 %2 %)</source>
        <translation>Next minimum: %1 nm (residual %2 %)</translation>
    </message>
    <message>
        <source>膜構成ﾌｧｲﾙ(*.flm)</source>
        <translation>Film stacks (*.flm)</translation>
    </message>
    <message>
        <source>膜厚ﾌｨｯﾄ</source>
        <translation>Film fit</translation>
    </message>
    <message>
        <source>開く...</source>
        <translation>Open...</translation>
    </message>
    <message>
        <source>保存...</source>
        <translation>Save...</translation>
    </message>
    <message>
        <source>選択ｽﾛｯﾄをﾌｨｯﾄ(&amp;F)</source>
        <translation>&amp;Fit selected slot</translation>
    </message>
    <message>
        <source>全ｽﾛｯﾄをﾌｨｯﾄ(&amp;A)</source>
        <translation>Fit &amp;all slots</translation>
    </message>
    <message>
        <source>(保存されていません)</source>
        <translation>(not saved)</translation>
    </message>
    <message>
        <source>膜構成ﾌｧｲﾙを開く</source>
        <translation>Open a film stack</translation>
    </message>
    <message>
        <source>膜構成ﾌｧｲﾙの保存</source>
        <translation>Save the film stack</translation>
    </message>
    <message>
        <source>計算中... 残り %1</source>
        <translation>Fitting... %1 left</translation>
    </message>
    <message>
        <source>膜構成 (空気側から)</source>
        <translation>Film stack (from the air side)</translation>
    </message>
    <message>
        <source>層の追加</source>
        <translation>Add layer</translation>
    </message>
    <message>
        <source>屈折率の値、*.ind、*.nk (nm n k の表)、または分散式
schott:A0,..,A5  sellmeier:A1,..,B3  cauchy:A,B[,C]</source>
        <translation>An index, *.ind, *.nk (a table nm n k), or a formula
schott:A0,..,A5  sellmeier:A1,..,B3  cauchy:A,B[,C]</translation>
    </message>
    <message>
        <source>材料ﾌｧｲﾙを選択</source>
        <translation>Choose a file of the material</translation>
    </message>
    <message>
        <source>範囲</source>
        <translation>Range</translation>
    </message>
    <message>
        <source>既知</source>
        <translation>Known</translation>
    </message>
    <message>
        <source>この層を除く</source>
        <translation>Remove this layer</translation>
    </message>
    <message>
        <source>材料ﾌｧｲﾙを開く</source>
        <translation>Open a material</translation>
    </message>
    <message>
        <source>材料ﾌｧｲﾙ(*.ind;*.nk)</source>
        <translation>Materials (*.ind;*.nk)</translation>
    </message>
    <message>
        <source>▲ 疑いあり   ◆ 膜厚ﾌｨｯﾄ</source>
        <translation>▲ in doubt   ◆ film fit</translation>
    </message>
    <message>
        <source>種類</source>
        <translation>Kind</translation>
    </message>
    <message>
        <source>疑い</source>
        <translation>Doubt</translation>
    </message>
    <message>
        <source>▲ 疑い</source>
        <translation>▲ Doubt</translation>
    </message>
    <message>
        <source>膜厚ﾌｨｯﾄ [nm]</source>
        <translation>Film fit [nm]</translation>
    </message>
    <message>
        <source>等色関数を本来の波長で用いた値です。他の測色計の値と比較できます。</source>
        <translation>By the colour-matching functions at their true wavelengths. Comparable with the values of other colorimeters.</translation>
    </message>
    <message>
        <source>この装置で従来から使われている値です。装置の規格の判定に用います。</source>
        <translation>As this instrument has always given them. Its standards are judged by these.</translation>
    </message>
    <message>
        <source>380～780 nm の平均は、440 nm より下を測定していないため表示しません。</source>
        <translation>There is no average over 380 to 780 nm: nothing is measured below 440 nm.</translation>
    </message>
    <message>
        <source>視感反射率 [%]。設定されている光源と視野によらず D65、2°の値です。</source>
        <translation>Luminous reflectance [%], for D65 and 2° whatever illuminant and observer are set.</translation>
    </message>
    <message>
        <source>外挿差 ΔE*ab</source>
        <translation>Spread ΔE*ab</translation>
    </message>
    <message>
        <source>440 nm より下を一定とした場合と直線で延長した場合の色差です。</source>
        <translation>The colour difference between a constant and a linear continuation below 440 nm.</translation>
    </message>
    <message>
        <source>測定は 440 nm からです。D65、2°ではYの0.2 %、Xの5 %、Zの22 %の重みが
440 nm より下にあり、ここは440 nm の値が続くものとして計算します。
この範囲に反射の山や谷がある試料では、外挿差より大きく外れることがあります。</source>
        <translation>Measuring begins at 440 nm. For D65 and 2°, 0.2 % of the weight of Y, 5 % of X and 22 % of Z
lie below; there the value at 440 nm is taken to go on.
Where the reflectance has a peak or a valley in this range, the error can exceed the spread.</translation>
    </message>
    <message>
        <source>測色値</source>
        <translation>Colour values</translation>
    </message>
    <message>
        <source>CIE は他の測色計の値と比較できる測色値です。</source>
        <translation>CIE values are comparable with those of other colorimeters.</translation>
    </message>
    <message>
        <source>測色値:</source>
        <translation>Colour values:</translation>
    </message>
    <message>
        <source>装置固有</source>
        <translation>Instrument</translation>
    </message>
    <message>
        <source>色度図に示す測色値を選びます。</source>
        <translation>Which colour values the chromaticity diagrams show.</translation>
    </message>
    <message>
        <source>CIE測色値を加える</source>
        <translation>With CIE colour values</translation>
    </message>
    <message>
        <source>他の測色計と比較できる値を、別の表 (と色度図) に加えます。</source>
        <translation>Adds the values that compare with other colorimeters, in a table (and a diagram) of their own.</translation>
    </message>
    <message>
        <source>外挿差%1</source>
        <translation>Spread %1</translation>
    </message>
    <message>
        <source>CIE測色値を並べて表示する</source>
        <translation>Show the CIE colour values as well</translation>
    </message>
    <message>
        <source>ﾌﾟﾛｸﾞﾗﾑ設定</source>
        <translation>Program settings</translation>
    </message>
    <message>
        <source>測色値に「CIE」の列を加え、色度図で選べるようにし、印刷にも加えます。</source>
        <translation>Adds the column &quot;CIE&quot; to the colour values, a choice to the chromaticity diagram, and a table to the report.</translation>
    </message>
    <message>
        <source>他の測色計の値と比較できる値です。装置固有の測色値、規格の判定、
ﾌｧｲﾙの内容は変わりません。440 nm より下は外挿した値を用います。</source>
        <translation>They compare with the values of other colorimeters. The instrument&apos;s own colour values,
the judgement and the contents of files stay as they are. Below 440 nm the spectrum is extrapolated.</translation>
    </message>
    <message>
        <source>仮想装置で5個のサンプルを自動で測定し、measurement.csv と window.png を DIR に残します。</source>
        <translation>Measures five samples on the virtual instrument by itself and leaves measurement.csv and window.png in DIR.</translation>
    </message>
    <message>
        <source>--demo とともに：すべての画面と表示の画像を DIR に残します。</source>
        <translation>With --demo: leaves a picture of every window and view in DIR.</translation>
    </message>
    <message>
        <source>--demo とともに：シリアルポートの代わりに GP-IB のコントロールボックスで測定します。</source>
        <translation>With --demo: over the control box on the GP-IB instead of the serial port.</translation>
    </message>
    <message>
        <source>表示言語：ja または en（省略時：ヘルプメニューで選んだもの、なければ ja）。</source>
        <translation>Language of the texts: ja or en (default: as chosen in the help menu, else ja).</translation>
    </message>
    <message>
        <source>データファイル FILE を、画面を出さずに PDF にします。</source>
        <translation>Prints the data file FILE as a PDF file, without a window.</translation>
    </message>
    <message>
        <source>--report の PDF ファイル。</source>
        <translation>The PDF file of --report.</translation>
    </message>
    <message>
        <source>--report のタイトル。</source>
        <translation>The title of --report.</translation>
    </message>
    <message>
        <source>--report の測定者。</source>
        <translation>The operator named by --report.</translation>
    </message>
    <message>
        <source>顕微反射率測定装置 VEXA-KT の制御・解析プログラム。</source>
        <translation>Control and analysis program of the VEXA-KT reflectance micro-spectrophotometer.</translation>
    </message>
    <message>
        <source>ﾌｧｲﾙが見つかりません。<byte value="xd"/><byte value="xd"/>%1</source>
        <translation>The file was not found.<byte value="xd"/><byte value="xd"/>%1</translation>
    </message>
    <message>
        <source>ﾌｧｲﾙが見つかりません。最近使ったﾌｧｲﾙから除きます。<byte value="xd"/><byte value="xd"/>%1</source>
        <translation>The file was not found. It is removed from the recently used files.<byte value="xd"/><byte value="xd"/>%1</translation>
    </message>
    <message>
        <source>一度に開けるﾌｧｲﾙは１つです。</source>
        <translation>Only one file can be opened at a time.</translation>
    </message>
    <message>
        <source>データファイル (*.csv, *.dat)。</source>
        <translation>A data file (*.csv or *.dat).</translation>
    </message>
    <message>
        <source>表の本来の波長で計算した CIE の色を加えます。</source>
        <translation>Adds the CIE colour at the tables&apos; true wavelengths.</translation>
    </message>
    <message>
        <source>データファイルの各スロットの色、判定、膜厚を求めます。</source>
        <translation>Colours, judgements and thicknesses of the slots of a data file.</translation>
    </message>
    <message>
        <source>環境で無効になっていても膜厚を計算します。</source>
        <translation>Computes the thickness even when the environment has it disabled.</translation>
    </message>
    <message>
        <source>使い方: vexa-cli コマンド [引数] [オプション]

コマンド:
</source>
        <translation>Usage: vexa-cli COMMAND [arguments] [options]

Commands:
</translation>
    </message>
    <message>
        <source>
「vexa-cli コマンド --help」で、それぞれの説明を表示します。
</source>
        <translation>
&quot;vexa-cli COMMAND --help&quot; tells more about each.
</translation>
    </message>
    <message>
        <source>この説明を表示します。</source>
        <translation>Shows this help.</translation>
    </message>
    <message>
        <source>一つの JSON 文書を出力します。</source>
        <translation>Prints one JSON document.</translation>
    </message>
    <message>
        <source>設定ファイルのあるプログラムディレクトリ（省略時：現在のディレクトリ）。</source>
        <translation>Program directory, with the settings files (default: the current one).</translation>
    </message>
    <message>
        <source>表示言語：ja（省略時）または en。--json では常に ja です。</source>
        <translation>Language of the texts: ja (default) or en; with --json always ja.</translation>
    </message>
    <message>
        <source>すべての質問に「いいえ」と答えます。</source>
        <translation>Answers every question with no.</translation>
    </message>
    <message>
        <source>読み込むデータファイル（複数可）。</source>
        <translation>Data file to read, or several.</translation>
    </message>
    <message>
        <source>書き込むデータファイル。複数のときはディレクトリ。</source>
        <translation>Data file to write, or a directory for several.</translation>
    </message>
    <message>
        <source>1: csv、2: 10ブロックの dat、3: 5ブロックの dat（省略時：OUT の拡張子による）。</source>
        <translation>1 csv, 2 dat with ten blocks, 3 dat with five (default: by the ending of OUT).</translation>
    </message>
    <message>
        <source>データファイルを読み込み、別の形式で書き込みます。</source>
        <translation>Reads a data file and writes it in another layout.</translation>
    </message>
    <message>
        <source>1024バイトの検出器ライン、1～16本。</source>
        <translation>1 to 16 detector lines of 1024 bytes.</translation>
    </message>
    <message>
        <source>6本のスペクトル線の画素位置（省略時 138,325,378,409,469,0）。</source>
        <translation>Pixel positions of the six spectral lines (default 138,325,378,409,469,0).</translation>
    </message>
    <message>
        <source>開始波長（省略時 440）。</source>
        <translation>Start wavelength (default 440).</translation>
    </message>
    <message>
        <source>検出器のラインを平均し、波長に対応させます。</source>
        <translation>Averages raw detector lines and maps them to wavelengths.</translation>
    </message>
    <message>
        <source>全波長で同じ値。</source>
        <translation>The same value at every wavelength.</translation>
    </message>
    <message>
        <source>Schottの分散式、波長はマイクロメートル。</source>
        <translation>Schott&apos;s formula, wavelength in micrometres.</translation>
    </message>
    <message>
        <source>Sellmeierの分散式、波長はマイクロメートル。</source>
        <translation>Sellmeier&apos;s formula, wavelength in micrometres.</translation>
    </message>
    <message>
        <source>屈折率またはリファレンスのファイル (*.ind, *.ref)。</source>
        <translation>An index or reference file (*.ind, *.ref).</translation>
    </message>
    <message>
        <source>膜のない基板の屈折率を、測定したデータファイルから求めます。</source>
        <translation>Index of a bare substrate from its measured data file.</translation>
    </message>
    <message>
        <source>膜のない面の反射率を % で求めます（分散式のみ）。</source>
        <translation>Gives the reflectance of a bare surface in percent (formulas alone).</translation>
    </message>
    <message>
        <source>スペクトルを屈折率またはリファレンスのファイルに書き込みます。</source>
        <translation>Writes the spectrum as an index or a reference file.</translation>
    </message>
    <message>
        <source>設定から屈折率または反射率のスペクトルを計算します。</source>
        <translation>Computes an index or reflectance spectrum from its setting.</translation>
    </message>
    <message>
        <source>環境ファイル。</source>
        <translation>Environment file.</translation>
    </message>
    <message>
        <source>現在の形式で書き込みます。</source>
        <translation>Writes it in the current layout.</translation>
    </message>
    <message>
        <source>読み込めるすべてのバージョンの環境ファイルを表示します。</source>
        <translation>Shows an environment file of any accepted version.</translation>
    </message>
    <message>
        <source>データファイルの各スロットに、膜構成の膜厚をフィットします。</source>
        <translation>Fits the thicknesses of a film stack to the slots of a data file.</translation>
    </message>
    <message>
        <source>判定に使う規格。</source>
        <translation>The standards to judge by.</translation>
    </message>
    <message>
        <source>データファイルの各スロットを判定します。NG があれば終了ステータスは 3 です。</source>
        <translation>Judges the slots of a data file; exit status 3 when a group is NG.</translation>
    </message>
    <message>
        <source>バックグラウンド、リファレンス、サンプルを測定し、データファイルに保存します。</source>
        <translation>Measures background, reference and samples into a data file.</translation>
    </message>
    <message>
        <source>測定のたびに Enter を待ちます。</source>
        <translation>Waits for Enter before each measurement.</translation>
    </message>
    <message>
        <source>リファレンスの反射率：0.1～110 %、または *.ref ファイル（省略時：環境による）。</source>
        <translation>Reflectance of the reference: 0.1 to 110 percent, or a *.ref file (default: from the environment).</translation>
    </message>
    <message>
        <source>%1の検出器ライン。</source>
        <translation>Detector lines of the %1.</translation>
    </message>
    <message>
        <source>キャリブレーションのシフト値、0～7 nm（省略時：vexa.cal の値、なければ 4）。</source>
        <translation>Calibration shift, 0 to 7 nm (default: from vexa.cal, else 4).</translation>
    </message>
    <message>
        <source>三組の検出器ラインから反射率スペクトルを計算します。</source>
        <translation>Computes a reflectance spectrum from three sets of detector lines.</translation>
    </message>
    <message>
        <source>規格ファイル (*.std)。</source>
        <translation>A standard file (*.std).</translation>
    </message>
    <message>
        <source>規格を現在の形式で書き込みます。</source>
        <translation>Writes the standards in the current layout.</translation>
    </message>
    <message>
        <source>規格ファイルを表示し、現在の形式で書き込みます。</source>
        <translation>Shows a standard file, and writes it in the current layout.</translation>
    </message>
    <message>
        <source>summary（要約）、xmr（個々の値と移動範囲の管理図）、capability（工程能力）、grr（ゲージの繰返し性と再現性）のどれか。</source>
        <translation>summary, xmr (control chart of individuals and moving ranges), capability, or grr (gauge repeatability and reproducibility).</translation>
    </message>
    <message>
        <source>数値。一行に一つ、または見出しのある表。grr：列が part、operator、value の表。</source>
        <translation>Numbers, one a line or in a table with a heading; grr: a table with the columns part, operator, value.</translation>
    </message>
    <message>
        <source>表の中の数値の列。</source>
        <translation>The column of the numbers in a table.</translation>
    </message>
    <message>
        <source>xmr：最初の N 点から限界を決めます（省略時：すべての点）。</source>
        <translation>xmr: the first N points set the limits (default: all).</translation>
    </message>
    <message>
        <source>xmr：western（省略時）、nelson、または Nelson の8つのルールの一部。</source>
        <translation>xmr: western (default), nelson, or some of Nelson&apos;s eight.</translation>
    </message>
    <message>
        <source>capability：公差の下限。</source>
        <translation>capability: lower limit of the tolerance.</translation>
    </message>
    <message>
        <source>capability：公差の上限。</source>
        <translation>capability: upper limit of the tolerance.</translation>
    </message>
    <message>
        <source>grr：公差の幅。</source>
        <translation>grr: width of the tolerance.</translation>
    </message>
    <message>
        <source>数値の要約、管理図、工程能力、測定システム解析。</source>
        <translation>Summary, control chart, capability or gauge study of numbers.</translation>
    </message>
    <message>
        <source>累積ファイル (*.stc)。</source>
        <translation>A stock file (*.stc).</translation>
    </message>
    <message>
        <source>点をこのバージョンの累積ファイルに書き込みます。</source>
        <translation>Writes the points as a stock file of this version.</translation>
    </message>
    <message>
        <source>累積ファイルに累積された色の点を表示します。</source>
        <translation>Shows the accumulated colour points of a stock file.</translation>
    </message>
    <message>
        <source>環境ファイル（省略時：プログラムディレクトリのもの）。</source>
        <translation>Environment file (default: that of the program directory).</translation>
    </message>
    <message>
        <source>光源：A、B、C、D65 のどれか。</source>
        <translation>Illuminant: A, B, C or D65.</translation>
    </message>
    <message>
        <source>視野：2 または 10 度。</source>
        <translation>Observer: 2 or 10 degrees.</translation>
    </message>
    <message>
        <source>平均反射率の範囲 (nm)。</source>
        <translation>Range of the average reflectance in nm.</translation>
    </message>
    <message>
        <source>各スロットを判定します。NG があれば終了ステータスは 3 です。</source>
        <translation>Judges every slot; exit status 3 when a group is NG.</translation>
    </message>
    <message>
        <source>膜厚に使う極値：A（2個の極小）、B（極大）、C（両方）。</source>
        <translation>Extrema of the thickness: A (two minima), B (maxima) or C (both).</translation>
    </message>
    <message>
        <source>膜厚の種類：physical（物理）または optical（光学）。</source>
        <translation>Thickness: physical or optical.</translation>
    </message>
    <message>
        <source>膜の屈折率：数値または屈折率ファイル。</source>
        <translation>Index of the film: a number or an index file.</translation>
    </message>
    <message>
        <source>膜のない基板のデータファイル。</source>
        <translation>Data file of the bare substrate.</translation>
    </message>
    <message>
        <source>基板の材料：数値, FILE.ind, FILE.nk, schott:A0,..,A5, sellmeier:A1,..,B3, cauchy:A,B[,C]。</source>
        <translation>Material of the substrate: a number, FILE.ind, FILE.nk, schott:A0,..,A5, sellmeier:A1,..,B3, cauchy:A,B[,C].</translation>
    </message>
    <message>
        <source>層の材料。空気の側から順に1～4回指定します。</source>
        <translation>Material of a layer, from the air side; one to four times.</translation>
    </message>
    <message>
        <source>膜厚の範囲 (nm)。層ごとに1回（省略時 50-60000）。</source>
        <translation>Thickness in nm, once for each layer (default 50-60000).</translation>
    </message>
    <message>
        <source>使う波長 (nm)（省略時 440-840）。</source>
        <translation>Wavelengths used, in nm (default 440-840).</translation>
    </message>
    <message>
        <source>このスロットだけをフィットします。</source>
        <translation>Fits this slot alone.</translation>
    </message>
    <message>
        <source>0.5～1.6 の倍率を自由にし、リファレンスの誤差を吸収します（省略時）。</source>
        <translation>A free scale of 0.5 to 1.6 takes up an error of the reference (default).</translation>
    </message>
    <message>
        <source>倍率を 1 に固定します。</source>
        <translation>The scale is 1.</translation>
    </message>
    <message>
        <source>一定のバックグラウンドを自由にします（省略時 0）。</source>
        <translation>A constant background is free (default 0).</translation>
    </message>
    <message>
        <source>スリットの半値全幅 (nm)（省略時 1、なしは 0）。</source>
        <translation>Full width at half maximum of the slit in nm (default 1, 0 for none).</translation>
    </message>
    <message>
        <source>最初に指定した層の屈折率の係数を一つ自由にします。</source>
        <translation>The index of the layer named first gets one free factor.</translation>
    </message>
    <message>
        <source>区間の信頼水準（省略時 0.95）。</source>
        <translation>Of the interval (default 0.95).</translation>
    </message>
    <message>
        <source>コントローラのシリアルポート番号。0 は GP-IB のコントロールボックスです。</source>
        <translation>Serial port number of the controller; 0 is the control box on the GP-IB.</translation>
    </message>
    <message>
        <source>コントローラの装置ファイル（ポート番号の代わり）。</source>
        <translation>Device of the controller, instead of a port number.</translation>
    </message>
    <message>
        <source>測定したスロットのデータファイル。</source>
        <translation>Data file for the measured slots.</translation>
    </message>
    <message>
        <source>一ラインの積算時間、30～20000 ms（省略時：環境による）。</source>
        <translation>Integration time of a line, 30 to 20000 ms (default: from the environment).</translation>
    </message>
    <message>
        <source>一回の測定で平均するライン数、1～16（省略時 1）。</source>
        <translation>Lines averaged for a frame, 1 to 16 (default 1).</translation>
    </message>
    <message>
        <source>測定するサンプルの数、1～10（省略時 1）。</source>
        <translation>Samples to measure, 1 to 10 (default 1).</translation>
    </message>
    <message>
        <source>測定した光量とサンプルをすべて記録に残します。</source>
        <translation>Keeps every frame and sample in the record store.</translation>
    </message>
    <message>
        <source>記録のファイル（省略時：プログラムディレクトリの records.db）。</source>
        <translation>The record store (default: records.db of the program directory).</translation>
    </message>
    <message>
        <source>記録のロット。</source>
        <translation>Lot of the records.</translation>
    </message>
    <message>
        <source>記録の測定者。</source>
        <translation>Operator of the records.</translation>
    </message>
    <message>
        <source>次のサンプルの試料番号。サンプルごとに1回指定します。</source>
        <translation>Number of the next sample; once a sample.</translation>
    </message>
    <message>
        <source>コントローラの応答を待つ最長の時間（省略時 40000 ms）。</source>
        <translation>Longest wait for a reply of the controller (default 40000 ms).</translation>
    </message>
    <message>
        <source>list：このロットだけ。import：サンプルのロット。</source>
        <translation>list: only this lot; import: the lot of the samples.</translation>
    </message>
    <message>
        <source>list：このレシピだけ。</source>
        <translation>list: only this recipe.</translation>
    </message>
    <message>
        <source>list：この文字列を含む試料番号だけ。</source>
        <translation>list: only sample numbers that hold this text.</translation>
    </message>
    <message>
        <source>list：この測定者だけ。import、supersede：行う人。</source>
        <translation>list: only this operator; import, supersede: who does it.</translation>
    </message>
    <message>
        <source>list：この日付 (yyyy-mm-dd) または時刻から。</source>
        <translation>list: from this date, yyyy-mm-dd, or time on.</translation>
    </message>
    <message>
        <source>list：この日付または時刻まで（含む）。sync：PostgreSQL のサービスまたは URI。</source>
        <translation>list: to this date or time, included; sync: the PostgreSQL service or URI.</translation>
    </message>
    <message>
        <source>list：この判定だけ：OK、NG、none（判定なし）。</source>
        <translation>list: only this verdict: OK, NG or none.</translation>
    </message>
    <message>
        <source>list：最大の件数（省略時 100）。</source>
        <translation>list: at most so many (default 100).</translation>
    </message>
    <message>
        <source>list：差し替えられたものも。</source>
        <translation>list: superseded ones too.</translation>
    </message>
    <message>
        <source>evaluate：プログラムディレクトリのものの代わりに使う環境ファイル。</source>
        <translation>evaluate: environment file in the place of the program directory&apos;s.</translation>
    </message>
    <message>
        <source>evaluate：環境のものの代わりに使う規格。</source>
        <translation>evaluate: standards in the place of the environment&apos;s.</translation>
    </message>
    <message>
        <source>export：*.csv、*.dat、*.json、*.jdx のどれか。</source>
        <translation>export: *.csv, *.dat, *.json or *.jdx.</translation>
    </message>
    <message>
        <source>supersede：代わりになるサンプル。</source>
        <translation>supersede: the sample that takes the place.</translation>
    </message>
    <message>
        <source>supersede：理由。</source>
        <translation>supersede: why.</translation>
    </message>
    <message>
        <source>記録した測定を検索、表示、エクスポート、検査します。</source>
        <translation>Searches, shows, exports and checks the kept measurements.</translation>
    </message>
    <message>
        <source>次のどれか：%1。</source>
        <translation>One of %1.</translation>
    </message>
    <message>
        <source>バックグラウンド</source>
        <translation>background</translation>
    </message>
    <message>
        <source>リファレンス</source>
        <translation>reference</translation>
    </message>
    <message>
        <source>サンプル</source>
        <translation>sample</translation>
    </message>
    <message>
        <source>使い方: vexa-cli %1 %2</source>
        <translation>Usage: vexa-cli %1 %2</translation>
    </message>
    <message>
        <source>開くデータファイルまたは環境ファイル。</source>
        <translation>A data file or an environment file to open.</translation>
    </message>
    <message>
        <source>リファレンス（バックグラウンド用）</source>
        <translation>reference (background)</translation>
    </message>
    <message>
        <source>サンプル %1 </source>
        <translation>sample %1</translation>
    </message>
    <message>
        <source>%1を置いて Enter を押してください: </source>
        <translation>Place the %1 and press Enter: </translation>
    </message>
    <message>
        <source>起動ﾌｧｲﾙのﾗｲﾝ位置(ﾋﾟｸｾﾙ)が検出器に合いません。測定される波長は正しくありません。<byte value="xd"/><byte value="xd"/>ﾌｧｲﾙ名:%1<byte value="xd"/><byte value="xd"/>ﾗｲﾝ位置:%2</source>
        <translation>The line positions (pixels) of the start-up file do not fit the detector. The wavelengths measured will not be right.<byte value="xd"/><byte value="xd"/>File name: %1<byte value="xd"/><byte value="xd"/>Line positions: %2</translation>
    </message>
    <message>
        <source>設定ﾌｧｲﾙが、読み書きした後に他のｳｨﾝﾄﾞｳかﾌﾟﾛｸﾞﾗﾑで変更されています。上書き保存しますか？<byte value="xd"/><byte value="xd"/>%1</source>
        <translation>Another window or program has changed the settings file since it was read or written here. Overwrite it?<byte value="xd"/><byte value="xd"/>%1</translation>
    </message>
    <message>
        <source>同じﾌｫﾙﾀﾞでﾌﾟﾛｸﾞﾗﾑがすでに起動しています。設定ﾌｧｲﾙを共有するので、どちらかだけで設定を変更して下さい。<byte value="xd"/><byte value="xd"/>%1</source>
        <translation>The program is running already in the same folder. Both share its settings files: change settings in only one of them.<byte value="xd"/><byte value="xd"/>%1</translation>
    </message>
    <message>
        <source>取り込んだ光量がすべて0です。検出器とｹｰﾌﾞﾙ、分光器のﾗｲﾝ位置を確認して下さい。</source>
        <translation>The light amounts of the frame are all 0. Check the detector, its cable and the line positions of the spectrometer.</translation>
    </message>
    <message>
        <source>検出器のﾗｲﾝが%2本のうち%1本しか届いていません。届いたﾗｲﾝの平均を使います。</source>
        <translation>Of %2 detector lines only %1 have come. The mean of those is used.</translation>
    </message>
    <message>
        <source>%1 を他のユーザーが書き換えられるので、%2 を読み込みません。</source>
        <translation>%2 is not loaded, because other users may write %1.</translation>
    </message>
    <message>
        <source>膜屈折率 %1</source>
        <translation>Film index %1</translation>
    </message>
    <message>
        <source>膜 %1</source>
        <translation>Film %1</translation>
    </message>
    <message>
        <source>膜</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>ﾃﾞｰﾀごと (測定条件の表)</source>
        <translation>Each its own (table of conditions)</translation>
    </message>
    <message>
        <source>共有の記録に送る記録: %1件</source>
        <translation>Records to be sent to the shared store: %1</translation>
    </message>
    <message>
        <source>記録</source>
        <translation>Records</translation>
    </message>
    <message>
        <source>記録の設定ﾌｧｲﾙを読めません。記録は共有されず、測定機の名前はこの計算機の名前になります。<byte value="xd"/><byte value="xd"/>%1</source>
        <translation>The settings file of the records cannot be read. Records are not shared, and the station has the name of this computer.<byte value="xd"/><byte value="xd"/>%1</translation>
    </message>
    <message>
        <source>記録を読めません。<byte value="xd"/><byte value="xd"/>%1</source>
        <translation>The records cannot be read.<byte value="xd"/><byte value="xd"/>%1</translation>
    </message>
    <message>
        <source>記録に書き込めませんでした。<byte value="xd"/><byte value="xd"/>%1</source>
        <translation>The record store could not be written to.<byte value="xd"/><byte value="xd"/>%1</translation>
    </message>
    <message>
        <source>どちらかの記録は、すでに置き換えられています。</source>
        <translation>One of the records is superseded already.</translation>
    </message>
    <message>
        <source>ﾃﾞｰﾀ･ﾌｧｲﾙに入る記録は10件までです。</source>
        <translation>A data file holds ten records at most.</translation>
    </message>
    <message>
        <source>%1 imported, %2 already there
</source>
        <translation>%1 imported, %2 already there
</translation>
    </message>
    <message>
        <source>%1 rows, head %2
</source>
        <translation>%1 rows, head %2
</translation>
    </message>
    <message>
        <source>%1 sent, %2 waiting
</source>
        <translation>%1 sent, %2 waiting
</translation>
    </message>
    <message>
        <source>記録 %1: %2</source>
        <translation>Record %1: %2</translation>
    </message>
    <message>
        <source>%1件</source>
        <translation>%1 records</translation>
    </message>
    <message>
        <source>件数</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>印刷日</source>
        <translation>Printed</translation>
    </message>
    <message>
        <source>ロット</source>
        <translation>Lot</translation>
    </message>
    <message>
        <source>レシピ</source>
        <translation>Recipe</translation>
    </message>
    <message>
        <source>測定機</source>
        <translation>Station</translation>
    </message>
    <message>
        <source>測定日時</source>
        <translation>Measured</translation>
    </message>
    <message>
        <source>番号</source>
        <translation>No.</translation>
    </message>
    <message>
        <source>判定</source>
        <translation>Verdict</translation>
    </message>
    <message>
        <source>いまの設定での再計算</source>
        <translation>Recomputed under the settings in force</translation>
    </message>
    <message>
        <source>記録された値は変わりません。記録と異なる値は太字です。</source>
        <translation>The stored values stay. Values that differ from them are bold.</translation>
    </message>
    <message>
        <source>再計算</source>
        <translation>Recomputed</translation>
    </message>
    <message>
        <source>記録の書き出し</source>
        <translation>Export records</translation>
    </message>
    <message>
        <source>書き込みが許可されていないか、ﾌｧｲﾙに書けない文字があります。</source>
        <translation>Writing is not allowed, or a character has no place in the file.</translation>
    </message>
    <message>
        <source>余裕 %1</source>
        <translation>margin %1</translation>
    </message>
    <message>
        <source>ﾊﾞｯｸｸﾞﾗｳﾝﾄﾞ</source>
        <translation>Background</translation>
    </message>
    <message>
        <source>ﾌﾟﾛｸﾞﾗﾑ</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>置き換えた記録</source>
        <translation>Supersedes</translation>
    </message>
    <message>
        <source>理由</source>
        <translation>Reason</translation>
    </message>
    <message>
        <source>全期間</source>
        <translation>All time</translation>
    </message>
    <message>
        <source>今日</source>
        <translation>Today</translation>
    </message>
    <message>
        <source>7日間</source>
        <translation>7 days</translation>
    </message>
    <message>
        <source>30日間</source>
        <translation>30 days</translation>
    </message>
    <message>
        <source>期間を指定</source>
        <translation>From - to</translation>
    </message>
    <message>
        <source>すべて</source>
        <translation>All</translation>
    </message>
    <message>
        <source>判定なし</source>
        <translation>None</translation>
    </message>
    <message>
        <source>この測定機</source>
        <translation>This station</translation>
    </message>
    <message>
        <source>全測定機 (共有)</source>
        <translation>All stations (shared)</translation>
    </message>
    <message>
        <source>置き換えられた記録も</source>
        <translation>With superseded ones</translation>
    </message>
    <message>
        <source>試料Noの一部</source>
        <translation>Part of the sample number</translation>
    </message>
    <message>
        <source>検索(&amp;F)</source>
        <translation>&amp;Find</translation>
    </message>
    <message>
        <source>期間</source>
        <translation>Period</translation>
    </message>
    <message>
        <source>検索先</source>
        <translation>Search in</translation>
    </message>
    <message>
        <source>まだ記録がありません。</source>
        <translation>There are no records yet.</translation>
    </message>
    <message>
        <source>記録を検索できません。%1</source>
        <translation>The records cannot be searched. %1</translation>
    </message>
    <message>
        <source>ｽﾛｯﾄに読み込む(&amp;L)</source>
        <translation>&amp;Load into slots</translation>
    </message>
    <message>
        <source>再計算(&amp;E)</source>
        <translation>R&amp;ecompute</translation>
    </message>
    <message>
        <source>書き出し(&amp;X)</source>
        <translation>E&amp;xport</translation>
    </message>
    <message>
        <source>置き換え(&amp;S)</source>
        <translation>&amp;Supersede</translation>
    </message>
    <message>
        <source>10件までをｽﾛｯﾄに読み込みます。</source>
        <translation>Loads up to ten into the slots.</translation>
    </message>
    <message>
        <source>いまの設定で計算し直し、記録された値と並べます。</source>
        <translation>Computes anew under the settings in force, and shows that beside the stored values.</translation>
    </message>
    <message>
        <source>2件を選び、一方でもう一方を置き換えます。</source>
        <translation>Select two: one takes the place of the other.</translation>
    </message>
    <message>
        <source>%1件以上</source>
        <translation>%1 records or more</translation>
    </message>
    <message>
        <source>(ｸﾞﾗﾌは%1件まで)</source>
        <translation>(graph: %1 at most)</translation>
    </message>
    <message>
        <source>&#x3000;選択 %1件 </source>
        <translation>, %1 selected </translation>
    </message>
    <message>
        <source>記録の置き換え</source>
        <translation>Supersede a record</translation>
    </message>
    <message>
        <source>残す記録がもう一方を置き換えます。置き換えられた記録は消えません。</source>
        <translation>The record that stays takes the place of the other, which is not deleted.</translation>
    </message>
    <message>
        <source>残す記録</source>
        <translation>Stays</translation>
    </message>
    <message>
        <source>決めた人</source>
        <translation>Decided by</translation>
    </message>
    <message>
        <source>レシピを使えません。<byte value="xd"/><byte value="xd"/>%1</source>
        <translation>The recipe cannot be used.<byte value="xd"/><byte value="xd"/>%1</translation>
    </message>
    <message>
        <source>ロットを入力してください。</source>
        <translation>Enter a lot.</translation>
    </message>
    <message>
        <source>ロット %1 の記録がありません。</source>
        <translation>There are no records of lot %1.</translation>
    </message>
    <message>
        <source>反射率 %1 nm [%]</source>
        <translation>R at %1 nm [%]</translation>
    </message>
    <message>
        <source>光量 %1 nm [ｶｳﾝﾄ]</source>
        <translation>Light %1 nm [counts]</translation>
    </message>
    <message>
        <source>暗レベル [ｶｳﾝﾄ]</source>
        <translation>Dark level [counts]</translation>
    </message>
    <message>
        <source>暗ノイズ [ｶｳﾝﾄ]</source>
        <translation>Dark noise [counts]</translation>
    </message>
    <message>
        <source>最大波長 [nm]</source>
        <translation>Wavelength of maximum [nm]</translation>
    </message>
    <message>
        <source>最小波長 [nm]</source>
        <translation>Wavelength of minimum [nm]</translation>
    </message>
    <message>
        <source>色相角 h</source>
        <translation>Hue angle h</translation>
    </message>
    <message>
        <source>値が物理的な限界0に近く、正規分布とみなせません。</source>
        <translation>The values lie near the physical limit 0 and cannot be taken for normally distributed.</translation>
    </message>
    <message>
        <source>続く値どうしに相関があります（1次の自己相関が0.3を超えています）。</source>
        <translation>Successive values are correlated (lag-1 autocorrelation above 0.3).</translation>
    </message>
    <message>
        <source>最大 %1 (%2 nm)  %3%</source>
        <translation>Peak %1 (%2 nm)  %3%</translation>
    </message>
    <message>
        <source>飽和</source>
        <translation>saturated</translation>
    </message>
    <message>
        <source>平均</source>
        <translation>Mean</translation>
    </message>
    <message>
        <source>置き直し</source>
        <translation>placed again</translation>
    </message>
    <message>
        <source>汚れを拭いた</source>
        <translation>cleaned</translation>
    </message>
    <message>
        <source>番号の間違い</source>
        <translation>wrong number</translation>
    </message>
    <message>
        <source>測定器の異常</source>
        <translation>instrument fault</translation>
    </message>
    <message>
        <source>結果の確認</source>
        <translation>result checked</translation>
    </message>
    <message>
        <source>F3 ﾘﾌｧﾚﾝｽ</source>
        <translation>F3 Reference</translation>
    </message>
    <message>
        <source>F4 測り直し</source>
        <translation>F4 Repeat</translation>
    </message>
    <message>
        <source>F7 光量</source>
        <translation>F7 Light</translation>
    </message>
    <message>
        <source>F8 報告書</source>
        <translation>F8 Report</translation>
    </message>
    <message>
        <source>F10 ロット終了</source>
        <translation>F10 End of lot</translation>
    </message>
    <message>
        <source>測定中です。終わるまで待ってください。</source>
        <translation>Measuring. Wait until it ends.</translation>
    </message>
    <message>
        <source>先に、指示された測定をしてください。番号 %1 は残してあります。</source>
        <translation>First make the measurement that is asked for. The number %1 is kept.</translation>
    </message>
    <message>
        <source>測り直すレンズがありません。</source>
        <translation>There is no lens to repeat.</translation>
    </message>
    <message>
        <source>光量を測っています...</source>
        <translation>Measuring the light level...</translation>
    </message>
    <message>
        <source>光量の測定を止めました。</source>
        <translation>The light level was stopped.</translation>
    </message>
    <message>
        <source>光量を測れません。F7で再開します。</source>
        <translation>The light level cannot be measured. F7 starts it again.</translation>
    </message>
    <message>
        <source>次の番号: %1</source>
        <translation>Next number: %1</translation>
    </message>
    <message>
        <source>測定中です。Escで中止します。</source>
        <translation>Measuring. Esc cancels.</translation>
    </message>
    <message>
        <source>ﾘﾌｧﾚﾝｽを置いて、ReturnまたはSpaceで測定します。</source>
        <translation>Place the reference; Return or Space measures it.</translation>
    </message>
    <message>
        <source>ReturnまたはSpaceで測り直します。Escでやめます。↑↓で理由を選びます。</source>
        <translation>Return or Space measures it again, Esc does not. ↑↓ choose the reason.</translation>
    </message>
    <message>
        <source>レンズを置き、番号を読み取るか、ReturnまたはSpaceで測定します。</source>
        <translation>Place the lens; scan its number, or press Return or Space to measure it.</translation>
    </message>
    <message>
        <source>レンズ %1 を置いて、Returnで測定します。</source>
        <translation>Place lens %1; Return measures it.</translation>
    </message>
    <message>
        <source>作業者</source>
        <translation>Operator</translation>
    </message>
    <message>
        <source>%1 から %2 まで</source>
        <translation>from %1 to %2</translation>
    </message>
    <message>
        <source>レンズ</source>
        <translation>Lenses</translation>
    </message>
    <message>
        <source>%1   OK %2   NG %3   判定なし %4</source>
        <translation>%1   OK %2   NG %3   not judged %4</translation>
    </message>
    <message>
        <source>歩留り</source>
        <translation>Yield</translation>
    </message>
    <message>
        <source>測定数</source>
        <translation>Measurements</translation>
    </message>
    <message>
        <source>%1   うち測り直し前 %2</source>
        <translation>%1   of them superseded %2</translation>
    </message>
    <message>
        <source>統計</source>
        <translation>Statistics</translation>
    </message>
    <message>
        <source>項目</source>
        <translation>Item</translation>
    </message>
    <message>
        <source>95%区間</source>
        <translation>95 % interval</translation>
    </message>
    <message>
        <source>Cpkを示さない理由</source>
        <translation>Why no Cpk is given</translation>
    </message>
    <message>
        <source>全測定</source>
        <translation>All measurements</translation>
    </message>
    <message>
        <source>時刻</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>備考</source>
        <translation>Remarks</translation>
    </message>
    <message>
        <source>測り直し: %1</source>
        <translation>repeated: %1</translation>
    </message>
    <message>
        <source>無効 (測り直し済み)</source>
        <translation>superseded</translation>
    </message>
    <message>
        <source>ロット報告書</source>
        <translation>Lot report</translation>
    </message>
    <message>
        <source>記録 %1行  %2</source>
        <translation>Record %1  %2</translation>
    </message>
    <message>
        <source>測定器は使用中です。</source>
        <translation>The instrument is in use.</translation>
    </message>
    <message>
        <source>未測定</source>
        <translation>not measured</translation>
    </message>
    <message>
        <source>%1分前 (期限%2分)</source>
        <translation>%1 min ago (limit %2 min)</translation>
    </message>
    <message>
        <source>ロット: %1
レシピ: %2
作業者: %3</source>
        <translation>Lot: %1
Recipe: %2
Operator: %3</translation>
    </message>
    <message>
        <source>歩留り %1</source>
        <translation>Yield %1</translation>
    </message>
    <message>
        <source>レンズ %1   OK %2   NG %3</source>
        <translation>Lenses %1   OK %2   NG %3</translation>
    </message>
    <message>
        <source>現在の設定</source>
        <translation>settings in force</translation>
    </message>
    <message>
        <source>制限なし</source>
        <translation>no limit</translation>
    </message>
    <message>
        <source>%1分</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>参照(&amp;B)...</source>
        <translation>&amp;Browse...</translation>
    </message>
    <message>
        <source>開始(&amp;S)</source>
        <translation>&amp;Start</translation>
    </message>
    <message>
        <source>このロットの報告書(&amp;R)...</source>
        <translation>&amp;Report of this lot...</translation>
    </message>
    <message>
        <source>レシピ(&amp;E)</source>
        <translation>R&amp;ecipe</translation>
    </message>
    <message>
        <source>ロット(&amp;L)</source>
        <translation>&amp;Lot</translation>
    </message>
    <message>
        <source>作業者(&amp;O)</source>
        <translation>&amp;Operator</translation>
    </message>
    <message>
        <source>(なし: 現在の設定で測定)</source>
        <translation>(none: settings in force)</translation>
    </message>
    <message>
        <source>レシピを開く</source>
        <translation>Open recipe</translation>
    </message>
    <message>
        <source>レシピ(*.json)|*.json|</source>
        <translation>Recipe(*.json)|*.json|</translation>
    </message>
    <message>
        <source>レシピを使えません: %1</source>
        <translation>The recipe cannot be used: %1</translation>
    </message>
    <message>
        <source>測定中</source>
        <translation>BUSY</translation>
    </message>
    <message>
        <source>測定済</source>
        <translation>DONE</translation>
    </message>
    <message>
        <source>判定する規格がありません。</source>
        <translation>There is no standard to judge by.</translation>
    </message>
    <message>
        <source>エラー</source>
        <translation>ERROR</translation>
    </message>
    <message>
        <source>準備</source>
        <translation>PREPARE</translation>
    </message>
    <message>
        <source>ﾘﾌｧﾚﾝｽを置いてください。</source>
        <translation>Place the reference.</translation>
    </message>
    <message>
        <source>保留</source>
        <translation>HELD</translation>
    </message>
    <message>
        <source>測定可</source>
        <translation>READY</translation>
    </message>
    <message>
        <source>レンズを置いてください。</source>
        <translation>Place the lens.</translation>
    </message>
    <message>
        <source>測定済み</source>
        <translation>REPEAT?</translation>
    </message>
    <message>
        <source>この番号は測定済みです (%1)。測り直しますか。
理由: %2</source>
        <translation>This number was measured already (%1). Measure it again?
Reason: %2</translation>
    </message>
    <message>
        <source>ロット測定</source>
        <translation>Measure a lot</translation>
    </message>
    <message>
        <source>F2 ﾊﾞｯｸｸﾞﾗﾝﾄﾞ</source>
        <translation>F2 Background</translation>
    </message>
    <message>
        <source>ReturnまたはSpaceでﾊﾞｯｸｸﾞﾗﾝﾄﾞを測定します。</source>
        <translation>Return or Space measures the background.</translation>
    </message>
    <message>
        <source>ﾊﾞｯｸｸﾞﾗﾝﾄﾞ: %1
ﾘﾌｧﾚﾝｽ: %2</source>
        <translation>Background: %1
Reference: %2</translation>
    </message>
    <message>
        <source>環境: %1   規格: %2   膜構成: %3
測定回数: %4   ﾊﾞｯｸｸﾞﾗﾝﾄﾞ: %5   ﾘﾌｧﾚﾝｽ: %6</source>
        <translation>Environment: %1   Standard: %2   Film stack: %3
Repeats: %4   Background: %5   Reference: %6</translation>
    </message>
    <message>
        <source>ﾊﾞｯｸｸﾞﾗﾝﾄﾞ</source>
        <translation>Background</translation>
    </message>
    <message>
        <source>ﾊﾞｯｸｸﾞﾗﾝﾄﾞの測定が必要です。</source>
        <translation>The background has to be measured.</translation>
    </message>
    <message>
        <source>レシピの環境と規格で、各サンプルをレシピの回数だけ測定します。記録にレシピ名が残ります。</source>
        <translation>Measures under the environment and the standard of a recipe, each sample as often as it wants; the records name it.</translation>
    </message>
    <message>
        <source>値</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>平均の95%信頼区間</source>
        <translation>95% interval of the mean</translation>
    </message>
    <message>
        <source>標準偏差</source>
        <translation>Standard deviation</translation>
    </message>
    <message>
        <source>中央値</source>
        <translation>Median</translation>
    </message>
    <message>
        <source>1次の自己相関</source>
        <translation>Lag-1 autocorrelation</translation>
    </message>
    <message>
        <source>平均移動範囲</source>
        <translation>Mean moving range</translation>
    </message>
    <message>
        <source>規格下限</source>
        <translation>Lower limit (LSL)</translation>
    </message>
    <message>
        <source>規格上限</source>
        <translation>Upper limit (USL)</translation>
    </message>
    <message>
        <source>規格外の点</source>
        <translation>Points outside</translation>
    </message>
    <message>
        <source>規格外の期待値</source>
        <translation>Expected outside</translation>
    </message>
    <message>
        <source>異常</source>
        <translation>Signals</translation>
    </message>
    <message>
        <source>点番号</source>
        <translation>Point</translation>
    </message>
    <message>
        <source>日時</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>規則</source>
        <translation>Rules</translation>
    </message>
    <message>
        <source>群</source>
        <translation>Group</translation>
    </message>
    <message>
        <source>そのため工程能力指数は示しません。規格外は %1 点中 %2 点でした。</source>
        <translation>So no capability index is shown. Of %1 points %2 were outside the limits.</translation>
    </message>
    <message>
        <source>工程能力指数なし: %1</source>
        <translation>No capability index: %1</translation>
    </message>
    <message>
        <source>管理状態にないため、工程能力指数は将来を約束しません。</source>
        <translation>The process is not in control, so the capability promises nothing for the future.</translation>
    </message>
    <message>
        <source>この値のない記録が %1 件あります。</source>
        <translation>%1 records do not have this value.</translation>
    </message>
    <message>
        <source>新しい方から %1 件だけを示しています。</source>
        <translation>Only the newest %1 are shown.</translation>
    </message>
    <message>
        <source>群なし</source>
        <translation>No groups</translation>
    </message>
    <message>
        <source>日</source>
        <translation>Day</translation>
    </message>
    <message>
        <source>装置</source>
        <translation>Station</translation>
    </message>
    <message>
        <source>管理図</source>
        <translation>Control chart</translation>
    </message>
    <message>
        <source>最初のこの点数から管理限界を求めます。</source>
        <translation>The control limits come from the first so many points.</translation>
    </message>
    <message>
        <source>読み直し(&amp;R)</source>
        <translation>&amp;Read again</translation>
    </message>
    <message>
        <source>限界の点数</source>
        <translation>Points for limits</translation>
    </message>
    <message>
        <source>ヒストグラム</source>
        <translation>Histogram</translation>
    </message>
    <message>
        <source>注意</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>度数</source>
        <translation>Count</translation>
    </message>
    <message>
        <source>期間を限る</source>
        <translation>Limit the days</translation>
    </message>
    <message>
        <source>から</source>
        <translation>From</translation>
    </message>
    <message>
        <source>まで</source>
        <translation>To</translation>
    </message>
    <message>
        <source>移動範囲</source>
        <translation>Moving range</translation>
    </message>
    <message>
        <source>日常点検の設定</source>
        <translation>Settings of the daily check</translation>
    </message>
    <message>
        <source>点検する波長を変えると、限界は新しい点検から決め直すことになります。</source>
        <translation>With other wavelengths, the limits have to be set anew from new checks.</translation>
    </message>
    <message>
        <source>異常のときはロットの判定を保留する</source>
        <translation>Hold lot verdicts while a check is red</translation>
    </message>
    <message>
        <source>波長%1</source>
        <translation>Wavelength %1</translation>
    </message>
    <message>
        <source>全変動に対する割合</source>
        <translation>of the total</translation>
    </message>
    <message>
        <source>公差に対する割合</source>
        <translation>of the tolerance</translation>
    </message>
    <message>
        <source>ゲージ R&amp;R</source>
        <translation>Gauge R&amp;R</translation>
    </message>
    <message>
        <source>繰返し性</source>
        <translation>Repeatability</translation>
    </message>
    <message>
        <source>再現性</source>
        <translation>Reproducibility</translation>
    </message>
    <message>
        <source>交互作用</source>
        <translation>Interaction</translation>
    </message>
    <message>
        <source>部品</source>
        <translation>Part</translation>
    </message>
    <message>
        <source>点検片</source>
        <translation>Check piece</translation>
    </message>
    <message>
        <source>ランプ</source>
        <translation>Lamp</translation>
    </message>
    <message>
        <source>暗レベルとノイズ</source>
        <translation>Dark level and noise</translation>
    </message>
    <message>
        <source>「測定」を押してください。光を閉じて背景を測定します。</source>
        <translation>Press &quot;Measure&quot;. The light is closed and the background measured.</translation>
    </message>
    <message>
        <source>ﾘﾌｧﾚﾝｽ試料を置いて「測定」を押してください。</source>
        <translation>Put the reference in place and press &quot;Measure&quot;.</translation>
    </message>
    <message>
        <source>点検片を置いて「測定」を押してください。</source>
        <translation>Put the check piece in place and press &quot;Measure&quot;.</translation>
    </message>
    <message>
        <source>測定(&amp;M)</source>
        <translation>&amp;Measure</translation>
    </message>
    <message>
        <source>限界を決める(&amp;L)...</source>
        <translation>Set &amp;limits...</translation>
    </message>
    <message>
        <source>保留を解く(&amp;H)...</source>
        <translation>Release &amp;hold...</translation>
    </message>
    <message>
        <source>日常点検</source>
        <translation>Daily check</translation>
    </message>
    <message>
        <source>設定(&amp;S)...</source>
        <translation>&amp;Settings...</translation>
    </message>
    <message>
        <source>点検</source>
        <translation>Check</translation>
    </message>
    <message>
        <source>背景</source>
        <translation>Background</translation>
    </message>
    <message>
        <source>測定しています...</source>
        <translation>Measuring...</translation>
    </message>
    <message>
        <source>まだ点検していません。</source>
        <translation>Not checked yet.</translation>
    </message>
    <message>
        <source>正常</source>
        <translation>Green: normal</translation>
    </message>
    <message>
        <source>異常（ロットの判定を保留しています）</source>
        <translation>Red: lot verdicts are held</translation>
    </message>
    <message>
        <source>限界を決めたときと測定条件が違うため、判定できません。</source>
        <translation>No verdict: the limits were set under other measuring conditions.</translation>
    </message>
    <message>
        <source>限界を決めるためのデータを集めています。</source>
        <translation>Collecting data for the limits.</translation>
    </message>
    <message>
        <source>限界: %1 に %2 日分から決定</source>
        <translation>Limits: set on %1 from %2 days</translation>
    </message>
    <message>
        <source>限界: 未決定（この条件で %1/%2 日）</source>
        <translation>Limits: not set yet (%1 of %2 days under these conditions)</translation>
    </message>
    <message>
        <source>限界の決定</source>
        <translation>Setting the limits</translation>
    </message>
    <message>
        <source>保留の解除</source>
        <translation>Releasing the hold</translation>
    </message>
    <message>
        <source>異常の理由を確かめて、ロットの判定の保留を解きます。</source>
        <translation>The hold of lot verdicts is released after the reason for the alarm was found.</translation>
    </message>
    <message>
        <source>管理限界</source>
        <translation>Control limits</translation>
    </message>
    <message>
        <source>決定者</source>
        <translation>Decided by</translation>
    </message>
    <message>
        <source>繰返し性（併合）</source>
        <translation>Repeatability (pooled)</translation>
    </message>
    <message>
        <source>合計</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>ゲージ R&amp;R は公差の %1 %、識別できる区分は %2 です。</source>
        <translation>Gauge R&amp;R is %1 % of the tolerance, with %2 distinct categories.</translation>
    </message>
    <message>
        <source>ゲージ R&amp;R は全変動の %1 %、識別できる区分は %2 です。</source>
        <translation>Gauge R&amp;R is %1 % of the total spread, with %2 distinct categories.</translation>
    </message>
    <message>
        <source>この測定システムは使えます。</source>
        <translation>This measuring system will do. </translation>
    </message>
    <message>
        <source>この測定システムは用途によっては使えます。</source>
        <translation>This measuring system will do for some uses. </translation>
    </message>
    <message>
        <source>この測定システムは改善が必要です。</source>
        <translation>This measuring system needs improvement. </translation>
    </message>
    <message>
        <source>分散分析</source>
        <translation>Analysis of variance</translation>
    </message>
    <message>
        <source>要因</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>成分</source>
        <translation>Components</translation>
    </message>
    <message>
        <source>全変動 [%]</source>
        <translation>Of total [%]</translation>
    </message>
    <message>
        <source>公差 [%]</source>
        <translation>Of tolerance [%]</translation>
    </message>
    <message>
        <source>測定システム解析</source>
        <translation>Gauge study</translation>
    </message>
    <message>
        <source>A, B, C</source>
        <translation>A, B, C</translation>
    </message>
    <message>
        <source>なし</source>
        <translation>None</translation>
    </message>
    <message>
        <source>計画を作る(&amp;N)</source>
        <translation>Make pla&amp;n</translation>
    </message>
    <message>
        <source>記録を解析(&amp;A)</source>
        <translation>&amp;Analyse records</translation>
    </message>
    <message>
        <source>計画</source>
        <translation>Plan</translation>
    </message>
    <message>
        <source>解析</source>
        <translation>Study</translation>
    </message>
    <message>
        <source>名前</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>部品の数</source>
        <translation>Parts</translation>
    </message>
    <message>
        <source>繰返し</source>
        <translation>Repeats</translation>
    </message>
    <message>
        <source>公差の幅</source>
        <translation>Width of tolerance</translation>
    </message>
    <message>
        <source>記録から</source>
        <translation>From records</translation>
    </message>
    <message>
        <source>新しい解析</source>
        <translation>New study</translation>
    </message>
    <message>
        <source>測定者は、違う名前で2人以上10人以下をコンマで区切って入力してください。</source>
        <translation>Enter two to ten operators with different names, separated by commas.</translation>
    </message>
    <message>
        <source>公差の幅は0より大きい数です。</source>
        <translation>The width of the tolerance is a number above 0.</translation>
    </message>
    <message>
        <source>計画を作るか、続ける解析を選んでください。</source>
        <translation>Make a plan, or choose a study to go on with.</translation>
    </message>
    <message>
        <source>すべて測定しました。</source>
        <translation>All is measured.</translation>
    </message>
    <message>
        <source>%1/%2  測定者 %3: 部品 %4 を置いて「測定」を押してください。結果は最後まで示しません。</source>
        <translation>%1 of %2  Operator %3: put part %4 in place and press &quot;Measure&quot;. Results are shown at the end.</translation>
    </message>
    <message>
        <source>この試料には解析する値がありません。測り直してください。</source>
        <translation>This sample does not have the value of the study. Measure it again.</translation>
    </message>
    <message>
        <source>ｽﾛｯﾄの統計(&amp;S)</source>
        <translation>&amp;Slot statistics</translation>
    </message>
    <message>
        <source>繰返し性の限界 2.8s</source>
        <translation>Limit 2.8s</translation>
    </message>
    <message>
        <source>反射率の平均の標準偏差 [%]</source>
        <translation>Mean s of the reflectance [%]</translation>
    </message>
    <message>
        <source>グラフに平均と幅を示す</source>
        <translation>Mean and spread in the graph</translation>
    </message>
    <message>
        <source>ｽﾛｯﾄの統計</source>
        <translation>Slot statistics</translation>
    </message>
    <message>
        <source> 回</source>
        <translation> times</translation>
    </message>
    <message>
        <source>一つのレンズの繰返し</source>
        <translation>Repeats of one lens</translation>
    </message>
    <message>
        <source>選んだ %1 個のｽﾛｯﾄ</source>
        <translation>%1 ticked slots</translation>
    </message>
    <message>
        <source>中止(&amp;M)</source>
        <translation>Stop (&amp;M)</translation>
    </message>
    <message>
        <source>繰返し測定(&amp;M)</source>
        <translation>&amp;Measure repeats</translation>
    </message>
    <message>
        <source>%1/%2 回目を測定しています...</source>
        <translation>Measuring %1 of %2...</translation>
    </message>
    <message>
        <source>一つのレンズの %1 回の測定</source>
        <translation>%1 measurements of one lens</translation>
    </message>
    <message>
        <source>膜厚ﾌｨｯﾄ</source>
        <comment>kind</comment>
        <translation>fit</translation>
    </message>
    <message>
        <source>物理膜厚</source>
        <comment>kind</comment>
        <translation>physical</translation>
    </message>
    <message>
        <source>光学膜厚</source>
        <comment>kind</comment>
        <translation>optical</translation>
    </message>
    <message>
        <source>--%1 は %2 のいずれかです：&quot;%3&quot;</source>
        <translation>--%1 takes one of %2, not &quot;%3&quot;</translation>
    </message>
    <message>
        <source>--%1 は 440-840 内の FROM-TO です：&quot;%2&quot;</source>
        <translation>--%1 takes FROM-TO within 440-840, not &quot;%2&quot;</translation>
    </message>
    <message>
        <source>--%1 は 0.1 ～ 10 です：&quot;%2&quot;</source>
        <translation>--%1 takes 0.1 to 10, not &quot;%2&quot;</translation>
    </message>
    <message>
        <source>%1：環境ファイルとして読み込めません</source>
        <translation>%1: no readable environment file</translation>
    </message>
    <message>
        <source>%1：規格ファイルとして読み込めません</source>
        <translation>%1: not a readable standard file</translation>
    </message>
    <message>
        <source>--%1 と --%2 は同時に指定できません</source>
        <translation>--%1 and --%2 exclude each other</translation>
    </message>
    <message>
        <source>%1：フォルダがありません</source>
        <translation>%1: no such directory</translation>
    </message>
    <message>
        <source>標準出力に書き込めません</source>
        <translation>standard output cannot be written</translation>
    </message>
    <message>
        <source>--%1 は %2 ～ %3 の数値です：&quot;%4&quot;</source>
        <translation>--%1 takes a number from %2 to %3, not &quot;%4&quot;</translation>
    </message>
    <message>
        <source>コマンドがありません。一覧は &quot;vexa-cli --help&quot;</source>
        <translation>no command given; &quot;vexa-cli --help&quot; lists them</translation>
    </message>
    <message>
        <source>コマンド &quot;%1&quot; はありません。一覧は &quot;vexa-cli --help&quot;</source>
        <translation>unknown command &quot;%1&quot;; &quot;vexa-cli --help&quot; lists them</translation>
    </message>
    <message>
        <source>%1：書き込めません（%2）</source>
        <translation>%1: cannot be written (%2)</translation>
    </message>
    <message>
        <source>%1：読み込めません</source>
        <translation>%1: cannot be read</translation>
    </message>
    <message>
        <source>%1：複数のファイルの出力先はフォルダです</source>
        <translation>%1: several files go into a directory</translation>
    </message>
    <message>
        <source>--positions は 6 個のピクセル位置です：&quot;%1&quot;</source>
        <translation>--positions takes six pixel positions, not &quot;%1&quot;</translation>
    </message>
    <message>
        <source>隣り合う輝線位置が同じです</source>
        <translation>two neighbouring line positions are equal</translation>
    </message>
    <message>
        <source>輝線位置が検出器に合いません</source>
        <translation>the line positions do not fit the detector</translation>
    </message>
    <message>
        <source>%1：飽和しています</source>
        <translation>%1: saturated</translation>
    </message>
    <message>
        <source>dispersion には --fixed、--schott、--sellmeier、--file、--substrate のいずれか 1 つを指定してください</source>
        <translation>dispersion takes one of --fixed, --schott, --sellmeier, --file, --substrate</translation>
    </message>
    <message>
        <source>--%1 は %2 です：&quot;%3&quot;</source>
        <translation>--%1 takes %2, not &quot;%3&quot;</translation>
    </message>
    <message>
        <source>fit には --substrate を 1 回、--layer を 1 ～ 4 回指定してください</source>
        <translation>fit takes --substrate once and --layer one to four times</translation>
    </message>
    <message>
        <source>--thickness は全部の層に 1 回ずつ指定するか、指定しないでください</source>
        <translation>--thickness is given once for each layer or not at all</translation>
    </message>
    <message>
        <source>--thickness は FROM-TO です：&quot;%1&quot;</source>
        <translation>--thickness takes FROM-TO, not &quot;%1&quot;</translation>
    </message>
    <message>
        <source>--range は 440-840 内の FROM-TO です：&quot;%1&quot;</source>
        <translation>--range takes FROM-TO within 440-840, not &quot;%1&quot;</translation>
    </message>
    <message>
        <source>スロット %1：%2</source>
        <translation>slot %1: %2</translation>
    </message>
    <message>
        <source>%1：スロット %2 は空です</source>
        <translation>%1: slot %2 is empty</translation>
    </message>
    <message>
        <source>judge には --standard FILE.std が必要です</source>
        <translation>judge needs --standard FILE.std</translation>
    </message>
    <message>
        <source>%1：1024 バイトの検出器ライン 1 ～ 16 本ではありません</source>
        <translation>%1: not 1 to 16 detector lines of 1024 bytes</translation>
    </message>
    <message>
        <source>%1：書き込めません</source>
        <translation>%1: cannot be written</translation>
    </message>
    <message>
        <source>標準入力が終わりました</source>
        <translation>standard input ended</translation>
    </message>
    <message>
        <source>%1 個の試料を %2 回ずつでは、測定が %3 回を超えます</source>
        <translation>%1 samples, %2 times each, are more than %3 measurements</translation>
    </message>
    <message>
        <source>measure には --out FILE が必要です</source>
        <translation>measure needs --out FILE</translation>
    </message>
    <message>
        <source>measure には --port N または --device PATH が必要です</source>
        <translation>measure needs --port N or --device PATH</translation>
    </message>
    <message>
        <source>--store、--lot、--operator は --record とともに指定してください</source>
        <translation>--store, --lot and --operator belong to --record</translation>
    </message>
    <message>
        <source>--sample-number が試料より多くあります</source>
        <translation>more --sample-number than samples</translation>
    </message>
    <message>
        <source>%1：その中のファイルに読み込めないものがあります</source>
        <translation>%1: not all of its files can be read</translation>
    </message>
    <message>
        <source>%1：読み込めないか、64 MiB を超えています</source>
        <translation>%1: cannot be read, or is above 64 MiB</translation>
    </message>
    <message>
        <source>&quot;%1&quot; は数値ではありません</source>
        <translation>&quot;%1&quot; is no number</translation>
    </message>
    <message>
        <source>%1：%2 行目：%3</source>
        <translation>%1: line %2: %3</translation>
    </message>
    <message>
        <source>見出しに列 &quot;%1&quot; がありません</source>
        <translation>the heading has no column &quot;%1&quot;</translation>
    </message>
    <message>
        <source>複数の列があります。見出しのある表の列を --column で指定してください</source>
        <translation>several columns; --column names one of a table with a heading</translation>
    </message>
    <message>
        <source>列が %1 個ですが、見出しは %2 個です</source>
        <translation>%1 columns, but %2 in the heading</translation>
    </message>
    <message>
        <source>&quot;%1&quot; が空です</source>
        <translation>&quot;%1&quot; is empty</translation>
    </message>
    <message>
        <source>--%1 は 0.1 ～ 110 %です：&quot;%2&quot;</source>
        <translation>--%1 takes 0.1 to 110 percent, not &quot;%2&quot;</translation>
    </message>
    <message>
        <source>%1：数値でも、読み込めるリファレンスファイルでもありません</source>
        <translation>%1: neither a number nor a readable reference file</translation>
    </message>
    <message>
        <source>records：%1：%2</source>
        <translation>records: %1: %2</translation>
    </message>
    <message>
        <source>records：records.json を読み込めません</source>
        <translation>records: records.json cannot be read</translation>
    </message>
    <message>
        <source>records supersede には --by と --reason が必要です</source>
        <translation>records supersede: --by and a --reason are needed</translation>
    </message>
    <message>
        <source>records：%1 か %2 は差し替え済みか、両方が同じものです</source>
        <translation>records: %1 or %2 is superseded already, or both are one</translation>
    </message>
    <message>
        <source>records：行 %1 が%2</source>
        <translation>records: row %1 %2</translation>
    </message>
    <message>
        <source>ありません</source>
        <translation>is missing</translation>
    </message>
    <message>
        <source>変更されたか、外部から入れられました</source>
        <translation>was changed or put in from outside</translation>
    </message>
    <message>
        <source>records に &quot;%1&quot; はありません：%2</source>
        <translation>records: no action &quot;%1&quot;; there are %2</translation>
    </message>
    <message>
        <source>使い方: vexa-cli records %1 %2</source>
        <translation>usage: vexa-cli records %1 %2</translation>
    </message>
    <message>
        <source>records %1 に --%2 はありません</source>
        <translation>records %1 has no option --%2</translation>
    </message>
    <message>
        <source>--%1 は日付 yyyy-mm-dd または日時です：&quot;%2&quot;</source>
        <translation>--%1 takes a date, yyyy-mm-dd, or a time, not &quot;%2&quot;</translation>
    </message>
    <message>
        <source>--%1 は OK、NG、none のいずれかです：&quot;%2&quot;</source>
        <translation>--%1 takes OK, NG or none, not &quot;%2&quot;</translation>
    </message>
    <message>
        <source>records export には --out が必要です</source>
        <translation>records export: --out is missing</translation>
    </message>
    <message>
        <source>%1：拡張子は csv、dat、json、jdx のいずれかです</source>
        <translation>%1: ends in none of csv, dat, json, jdx</translation>
    </message>
    <message>
        <source>%1：データファイルの試料は 10 個までです</source>
        <translation>%1: a data file holds ten samples at most</translation>
    </message>
    <message>
        <source>records：共有の記録がありません。--to または records.json の &quot;shared&quot; で指定してください</source>
        <translation>records: no shared store: give --to, or &quot;shared&quot; in records.json</translation>
    </message>
    <message>
        <source>records：&quot;%1&quot; は、パスワードのない PostgreSQL のサービスまたは URI ではありません</source>
        <translation>records: &quot;%1&quot; is no PostgreSQL service or URI without a password</translation>
    </message>
    <message>
        <source>共有の記録</source>
        <translation>shared store</translation>
    </message>
    <message>
        <source>reflectance には --%1 LINES.bin が必要です</source>
        <translation>reflectance needs --%1 LINES.bin</translation>
    </message>
    <message>
        <source>--%1 は western、nelson、またはカンマ区切りの 1 ～ 8 の番号です：&quot;%2&quot;</source>
        <translation>--%1 takes western, nelson, or numbers from 1 to 8 with commas between, not &quot;%2&quot;</translation>
    </message>
    <message>
        <source>statistics capability には --lower、--upper の一方または両方が必要です</source>
        <translation>statistics capability takes --lower, --upper or both</translation>
    </message>
    <message>
        <source>--lower は --upper より小さくしてください</source>
        <translation>--lower has to be below --upper</translation>
    </message>
    <message>
        <source>statistics：&quot;%1&quot; は summary、xmr、capability、grr のいずれでもありません</source>
        <translation>statistics: &quot;%1&quot; is none of summary, xmr, capability, grr</translation>
    </message>
    <message>
        <source>statistics %1 に --%2 はありません</source>
        <translation>statistics %1 takes no --%2</translation>
    </message>
    <message>
        <source>%1：準備できません</source>
        <translation>%1: cannot be prepared</translation>
    </message>
    <message>
        <source>仮想装置が起動しませんでした</source>
        <translation>the virtual instrument did not start</translation>
    </message>
    <message>
        <source>ファイルは一度に 1 つです</source>
        <translation>takes one file at a time</translation>
    </message>
    <message>
        <source>--report と --out は一緒に指定してください</source>
        <translation>--report and --out belong together</translation>
    </message>
    <message>
        <source>FILE は --report や --demo とともには指定できません</source>
        <translation>FILE belongs to neither --report nor --demo</translation>
    </message>
    <message>
        <source>--report と --demo は同時に指定できません</source>
        <translation>--report and --demo exclude each other</translation>
    </message>
    <message>
        <source>--title と --operator は --report とともに指定してください</source>
        <translation>--title and --operator belong to --report</translation>
    </message>
    <message>
        <source>%1：データファイル自身です</source>
        <translation>%1: is the data file itself</translation>
    </message>
    <message>
        <source>%1：データファイルとして読み込めません</source>
        <translation>%1: no readable data file</translation>
    </message>
    <message>
        <source>--language は ja または en です：&quot;%1&quot;</source>
        <translation>--language takes ja or en, not &quot;%1&quot;</translation>
    </message>
    <message>
        <source>ﾌｫﾙﾀﾞ</source>
        <translation>folder</translation>
    </message>
    <message>
        <source>未完</source>
        <translation>Unfinished</translation>
    </message>
    <message>
        <source>繰返し %1/%2</source>
        <translation>Repeat %1/%2</translation>
    </message>
    <message>
        <source>この種類のﾌｧｲﾙにない項目です。</source>
        <translation>This kind of file has no such entry.</translation>
    </message>
    <message>
        <source>必要な項目がありません。</source>
        <translation>A required entry is missing.</translation>
    </message>
    <message>
        <source>CIE測色値 (%1、Rv は D65 / 2°、%2)</source>
        <translation>CIE colour values (%1, Rv for D65 / 2°, %2)</translation>
    </message>
    <message>
        <source>視感反射率 Y (装置固有)</source>
        <translation>Luminous refl. Y (instrument)</translation>
    </message>
    <message>
        <source>ΔE00の目標</source>
        <translation>Target of ΔE00</translation>
    </message>
    <message>
        <source>CIEの限界: %1</source>
        <translation>CIE limits: %1</translation>
    </message>
    <message>
        <source>ﾚｼﾋﾟの限界が記録により異なります。最も新しい記録のものを用います。</source>
        <translation>The limits of the recipe differ between the records; those of the newest one are used.</translation>
    </message>
    <message>
        <source>記録のﾌｧｲﾙが取り除かれたか、置き換えられました。これからの記録は、今この名前にあるﾌｧｲﾙに書き込みます。それまでの記録と日常点検の保留は、元のﾌｧｲﾙにあります。<byte value="xd"/><byte value="xd"/>%1</source>
        <translation>The record file was removed or replaced. From now on records go into the file that has this name now. The records before, and what the daily check holds, are in the earlier file.<byte value="xd"/><byte value="xd"/>%1</translation>
    </message>
    <message>
        <source>膜構成の変更が保存されていません。保存しますか。</source>
        <translation>The changes of the film stack are not saved. Save them?</translation>
    </message>
    <message>
        <source>約 %1 nm の膜の干渉縞がありますが、入力した膜厚の範囲の外です。</source>
        <translation>There are fringes of a film of about %1 nm, outside the thickness ranges entered.</translation>
    </message>
    <message>
        <source>待っている操作を中止します (Esc、ほかのｳｨﾝﾄﾞｳが前にあるときは Shift+Esc)</source>
        <translation>Cancels what is being waited for (Esc; Shift+Esc when another window is in front)</translation>
    </message>
    <message>
        <source>ﾌｨｯﾄを中止しました。</source>
        <translation>The fit was cancelled.</translation>
    </message>
    <message>
        <source>測定日が日付ではありません。<byte value="xd"/><byte value="xd"/>%1<byte value="xd"/><byte value="xd"/>2026/11/22、2026/11/22 9:05、2026/11/22 9:05:00 の形で入力してください。</source>
        <translation>The measuring date is not a date.<byte value="xd"/><byte value="xd"/>%1<byte value="xd"/><byte value="xd"/>Enter it as 2026/11/22, 2026/11/22 9:05 or 2026/11/22 9:05:00.</translation>
    </message>
    <message>
        <source>全波長で使う反射率です (0.1～110 %)。</source>
        <translation>The reflectance at all wavelengths (0.1 to 110 %).</translation>
    </message>
    <message>
        <source>全波長で使う屈折率です (0.1～10)。</source>
        <translation>The refractive index at all wavelengths (0.1 to 10).</translation>
    </message>
    <message>
        <source>印刷の出力先です。PDFﾌｧｲﾙでは、印刷するたびにﾌｧｲﾙ名を決めます。</source>
        <translation>Where pages are printed. A PDF file is named each time.</translation>
    </message>
    <message>
        <source>用紙の大きさです。PDFﾌｧｲﾙのﾍﾟｰｼﾞもこの大きさになります。</source>
        <translation>The paper size, of the pages of a PDF file, too.</translation>
    </message>
    <message>
        <source>長い辺を縦にして印刷します。</source>
        <translation>Prints with the long side upright.</translation>
    </message>
    <message>
        <source>長い辺を横にして印刷します。</source>
        <translation>Prints with the long side across.</translation>
    </message>
    <message>
        <source>用紙の端から印刷する範囲までの距離です (0～50 mm)。</source>
        <translation>The distance from the edge of the paper to what is printed (0 to 50 mm).</translation>
    </message>
    <message>
        <source>波長軸の左端です (440～840 nm)。</source>
        <translation>The left end of the wavelength axis (440 to 840 nm).</translation>
    </message>
    <message>
        <source>波長軸の右端です。最短波長から20 nm以上離します (840 nmまで)。</source>
        <translation>The right end of the wavelength axis, at least 20 nm above the shortest wavelength (up to 840 nm).</translation>
    </message>
    <message>
        <source>波長軸の目盛りの間隔です (5～1000 nm)。</source>
        <translation>The distance between the ticks of the wavelength axis (5 to 1000 nm).</translation>
    </message>
    <message>
        <source>反射率軸の上端です (0.01～100 %)。</source>
        <translation>The upper end of the reflectance axis (0.01 to 100 %).</translation>
    </message>
    <message>
        <source>反射率軸の下端です (0～100 %)。</source>
        <translation>The lower end of the reflectance axis (0 to 100 %).</translation>
    </message>
    <message>
        <source>反射率軸の目盛りの間隔です。目盛りは100本までです。</source>
        <translation>The distance between the ticks of the reflectance axis, which takes up to 100 of them.</translation>
    </message>
    <message>
        <source>表の行の波長の間隔です (1～100 nm)。</source>
        <translation>The distance between the wavelengths of the rows of a table (1 to 100 nm).</translation>
    </message>
    <message>
        <source>平均反射率を計算する範囲の始まりです (440～840 nm)。</source>
        <translation>The beginning of the range of the average reflectance (440 to 840 nm).</translation>
    </message>
    <message>
        <source>平均反射率を計算する範囲の終わりです (440～840 nm)。</source>
        <translation>The end of the range of the average reflectance (440 to 840 nm).</translation>
    </message>
    <message>
        <source>使用する条件の波長の間で、反射率を上限と下限で判定します。</source>
        <translation>Judges the reflectance between the wavelengths of the conditions in use by their upper and lower limits.</translation>
    </message>
    <message>
        <source>判定する区間の始まりの波長と、そこでの限界です。</source>
        <translation>The wavelength at which judging begins, and the limits there.</translation>
    </message>
    <message>
        <source>前の条件からこの波長までの区間を判定します。限界は前の条件の限界から直線で変わります。</source>
        <translation>Judges the section from the previous condition to this wavelength. The limits change along straight lines from those of the previous condition.</translation>
    </message>
    <message>
        <source>表示設定の波長範囲の平均反射率を判定します。</source>
        <translation>Judges the average reflectance over the range of the display settings.</translation>
    </message>
    <message>
        <source>標準光源と視野の設定による視感反射率を判定します。</source>
        <translation>Judges the luminous reflectance for the illuminant and observer that are set.</translation>
    </message>
    <message>
        <source>反射率の山または谷の波長を判定します。</source>
        <translation>Judges the wavelength of the highest or lowest reflectance.</translation>
    </message>
    <message>
        <source>クロマ C*、a*b*色度図の原点からの距離を判定します。</source>
        <translation>Judges the chroma C*, the distance from the origin of the a*b* diagram.</translation>
    </message>
    <message>
        <source>色相角 h、a*軸から反時計回りの角度を判定します。上限が下限より小さいときは、0°をまたぐ範囲になります。</source>
        <translation>Judges the hue angle h, anticlockwise from the a* axis. An upper limit below the lower one means the range through 0°.</translation>
    </message>
    <message>
        <source>a*b*色度図に、このクロマの円を描きます。</source>
        <translation>Draws the circle of this chroma in the a*b* diagram.</translation>
    </message>
    <message>
        <source>a*b*色度図に、この色相角の線を描きます。</source>
        <translation>Draws the line of this hue angle in the a*b* diagram.</translation>
    </message>
    <message>
        <source>%1：測定値のあるスロットがありません</source>
        <translation>%1: no slot holds a measurement</translation>
    </message>
    <message>
        <source>▲ 疑いあり</source>
        <translation>▲ doubtful</translation>
    </message>
    <message>
        <source>この測定にはｽﾛｯﾄ %1 を使います。そのﾃﾞｰﾀは上書きされます。よろしいですか？</source>
        <translation>This measurement uses slot %1. Its data will be overwritten. Go on?</translation>
    </message>
    <message>
        <source>環境ﾌｧｲﾙを読み込めません。</source>
        <translation>The environment file cannot be read.</translation>
    </message>
    <message>
        <source>ﾌｧｲﾙに保存していない測定ﾃﾞｰﾀがｽﾛｯﾄから消えます。ﾌｧｲﾙを開いてもよろしいですか？</source>
        <translation>Measured data that are saved in no file will be gone from the slots. Open the file?</translation>
    </message>
    <message>
        <source>%1 (別の設定)</source>
        <translation>%1 (other settings)</translation>
    </message>
    <message>
        <source>この結果は、入力されている設定とは別の設定のものです。</source>
        <translation>This result is of other settings than those entered.</translation>
    </message>
    <message>
        <source>自由</source>
        <translation>free</translation>
    </message>
    <message>
        <source>固定</source>
        <translation>fixed</translation>
    </message>
    <message>
        <source>膜構成: %1</source>
        <translation>Film stack: %1</translation>
    </message>
    <message>
        <source>波長 %1～%2 nm   倍率 %3   背景光 %4   屈折率の係数 %5   ﾊﾞﾝﾄﾞ幅 %6 nm   波長の不確かさ %7 nm   屈折率の不確かさ %8 %   信頼水準 %9 %</source>
        <translation>Wavelengths %1 to %2 nm   scale %3   background %4   index factor %5   bandwidth %6 nm   wavelength uncertainty %7 nm   index uncertainty %8 %   confidence %9 %</translation>
    </message>
    <message>
        <source>膜厚ﾌｨｯﾄの条件</source>
        <translation>Conditions of the film fits</translation>
    </message>
    <message>
        <source>(ﾚｼﾋﾟなし)</source>
        <translation>(no recipe)</translation>
    </message>
    <message>
        <source>%1 種類のﾚｼﾋﾟの記録が混ざっています: %2</source>
        <translation>Records of %1 recipes are mixed: %2</translation>
    </message>
    <message>
        <source>限界を決める前の点が、限界の外にあります。</source>
        <translation>A point from before the limits were set lies outside them.</translation>
    </message>
    <message>
        <source> (0°をまたぐ)</source>
        <translation> (across 0°)</translation>
    </message>
    <message>
        <source>干渉縞なし</source>
        <translation>no fringes</translation>
    </message>
    <message>
        <source>波長目盛りの不確かさ (nm、信頼水準での半幅)（省略時 0.1）。</source>
        <translation>Uncertainty of the wavelength scale (nm, half width at the confidence) (default 0.1).</translation>
    </message>
    <message>
        <source>層の屈折率の相対的な不確かさ（信頼水準での半幅、省略時 0）。</source>
        <translation>Relative uncertainty of the indices of the layers (half width at the confidence, default 0).</translation>
    </message>
    <message>
        <source>残差がノイズよりはるかに大きく、膜構成または膜厚の範囲が試料と違う可能性があります。</source>
        <translation>The residual is far above the noise: stack or thickness range may not be those of the sample.</translation>
    </message>
    <message>
        <source>測定後に毎回ﾌｨｯﾄ (保存した膜構成)</source>
        <translation>Fit after each measurement (saved stack)</translation>
    </message>
    <message>
        <source>測定した試料を、ﾌｧｲﾙに保存した膜構成でﾌｨｯﾄし、結果を膜厚の横に表示します。</source>
        <translation>Fits each measured sample with the stack as it is saved in its file, and shows the result beside the thickness.</translation>
    </message>
    <message>
        <source>記録を控えることもできません。まだ書き込めない記録は、ﾌﾟﾛｸﾞﾗﾑが終わると失われます。書き込めるようにしてから終了してください。<byte value="xd"/><byte value="xd"/>%1</source>
        <translation>The records cannot even be noted. Those not yet written are lost when the program ends. Make it possible to write before ending it.<byte value="xd"/><byte value="xd"/>%1</translation>
    </message>
    <message>
        <source>%1 件の記録を書き込めず、失われました</source>
        <translation>%1 records could not be written and are lost</translation>
    </message>
    <message>
        <source>読めません</source>
        <translation>cannot be read</translation>
    </message>
    <message>
        <source>膜厚ﾌｨｯﾄ (層1)</source>
        <translation>Film fit (layer 1)</translation>
    </message>
    <message>
        <source>色相角が円の半分を超えて散らばっています。管理図も工程能力も意味を持ちません。</source>
        <translation>The hues scatter over more than half the circle: neither a control chart nor a capability has a meaning.</translation>
    </message>
    <message>
        <source>異常でなかった点検から管理限界を決めます。次に決め直すまで変わりません。ﾗﾝﾌﾟの交換や修理の後は、その日から後の点検だけを使ってください。</source>
        <translation>Sets the limits from the checks that gave no signals. They stay until they are set again. After a lamp change or a repair, use the checks since that day alone.</translation>
    </message>
    <message>
        <source>この日から</source>
        <translation>Since</translation>
    </message>
    <message>
        <source>日数</source>
        <translation>Days</translation>
    </message>
    <message>
        <source>%1 日 (%2 日必要です)</source>
        <translation>%1 days (%2 are needed)</translation>
    </message>
    <message>
        <source>%1 日</source>
        <translation>%1 days</translation>
    </message>
    <message>
        <source>保留は解かれました: %1 (%2、%3)</source>
        <translation>Released: %1 (%2, %3)</translation>
    </message>
    <message>
        <source>管理限界は %1 点だけから求めたもので、確かではありません（20 点以上が望まれます）。</source>
        <translation>The control limits come from %1 points only and are not sure (20 or more are wanted).</translation>
    </message>
</context>
</TS>
