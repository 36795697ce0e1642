-- What wixl leaves out of an installer's tables; packaging/installers.sh fills in @VERSION@ and @BITS@.
-- Without the module's version Windows Installer would never put a new file over an old one.
UPDATE `File` SET `Version`='@VERSION@.0', `Language`='1033' WHERE `File`='Telvix.dll'
DELETE FROM `MsiFileHash` WHERE `File_`='Telvix.dll'
-- Short names, and names that are not ASCII.
UPDATE `File` SET `FileName`='USERGDEN.HTM|user-guide.html' WHERE `File`='user_guide.html'
UPDATE `File` SET `FileName`='USERGDZH.HTM|user-guide.zh.html' WHERE `File`='user_guide.zh.html'
UPDATE `File` SET `FileName`='HOSTCNTR.HTM|host-contract.html' WHERE `File`='host_contract.html'
UPDATE `Shortcut` SET `Name`='GUIDEN@BITS@|User guide (@BITS@-bit)' WHERE `Shortcut`='UserGuideMenu'
UPDATE `Shortcut` SET `Name`='GUIDZH@BITS@|使用说明（@BITS@ 位）' WHERE `Shortcut`='UserGuideZhMenu'
-- The keys that only Wine needs.
UPDATE `Component` SET `Condition`='WINE' WHERE `Component`='SeparateKeys'
-- Folders that become empty are removed.
INSERT INTO `RemoveFile` (`FileKey`, `Component_`, `DirProperty`, `InstallMode`) VALUES ('MenuFolder', 'UserGuide', 'MenuFolder', 2)
INSERT INTO `CreateFolder` (`Directory_`, `Component_`) VALUES ('TelvixFolder', 'UserGuide')
INSERT INTO `InstallExecuteSequence` (`Action`, `Sequence`) VALUES ('RemoveFolders', 3600)
INSERT INTO `InstallExecuteSequence` (`Action`, `Sequence`) VALUES ('CreateFolders', 3700)
