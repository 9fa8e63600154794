"""What stands in the program file: what it needs of the system, what hardens it, its manifest and its icons."""

import collections
import struct
import sys
import unittest

# Debian's packages for Python, where another Python stands in front of the system's.
sys.path.append("/usr/lib/python3/dist-packages")

import pefile  # noqa: E402
from harness import DESTINATION, WINDOWS_BUILD, EndToEndTest  # noqa: E402

# Every function that the program may import, by library and by the first system of each family that has it. Under
# Windows 95 the wide functions are there and fail.
#
# Windows 95: the export tables of its kernel32.dll and user32.dll, by ordinal, as Wine repeated them in 1998 in its
# folder relay32. NT: the lines "Requires Windows NT ..." of the SDK's documentation of 2001; "4" also where these tell of
# 3.51 or of nothing, since NT 3.51 loads no program of subsystem version 4. msvcrt.dll came with NT 4 and later versions
# of Windows 95 (Microsoft's knowledge base, Q154591); on the first of these with many other programs.
IMPORTS = {
    "advapi32.dll": {("95", "3.1"): "RegCloseKey RegCreateKeyA RegOpenKeyA RegQueryValueExA RegSetValueExA"},
    "comctl32.dll": {("95", "4"): "InitCommonControls"},
    "comdlg32.dll": {("95", "3.1"): "GetOpenFileNameA GetSaveFileNameA"},
    "gdi32.dll": {
        ("95", "3.1"): """
            CreateFontIndirectA GetCharWidthA GetDeviceCaps GetStockObject GetTextExtentPoint32A GetTextMetricsA
            SelectObject"""
    },
    "kernel32.dll": {
        ("95", "3.1"): """
            CloseHandle CopyFileA CopyFileW CreateDirectoryA CreateDirectoryW CreateFileA CreateFileMappingA
            CreateProcessA DeleteCriticalSection DeleteFileA DeleteFileW EnterCriticalSection ExitProcess FindClose
            FindFirstFileA FindFirstFileW FindNextFileA FindNextFileW FindResourceA FormatMessageA FreeLibrary
            GetCurrentDirectoryA GetCurrentProcessId GetCurrentThreadId GetEnvironmentVariableA GetFileAttributesA
            GetFileAttributesW GetLastError GetLocalTime GetModuleFileNameA GetModuleHandleA GetModuleHandleW
            GetPrivateProfileStringA GetProcAddress GetStartupInfoA GetSystemDirectoryA GetTickCount GetVersion
            GlobalLock GlobalSize GlobalUnlock InitializeCriticalSection IsDBCSLeadByteEx LeaveCriticalSection
            LoadLibraryA LoadLibraryW LoadResource LocalFree LockResource MapViewOfFile MoveFileA MoveFileW
            MultiByteToWideChar OpenProcess QueryPerformanceCounter ReadFile ReadProcessMemory RemoveDirectoryA
            RemoveDirectoryW SearchPathA SetErrorMode SetFileAttributesA SetFileAttributesW SetFilePointer
            SetUnhandledExceptionFilter SizeofResource Sleep TlsGetValue UnmapViewOfFile VirtualAlloc VirtualFree
            VirtualProtect VirtualQuery WideCharToMultiByte WriteFile WritePrivateProfileStringA WriteProcessMemory
            lstrcpynA""",
        ("95", "3.5"): "GetVersionExA",
    },
    "msvcrt.dll": {
        ("95 OSR 2", "4"): """
            __getmainargs __initenv __mb_cur_max __p__acmdln __p__commode __p__fmode __set_app_type __setusermatherr
            _amsg_exit _cexit _close _errno _initterm _iob _ismbblead _onexit _read abort atoi calloc exit fprintf fputc
            fputs free fwrite getenv localeconv malloc memchr memcmp memcpy memmove memset realloc setlocale signal
            strchr strcmp strerror strlen strncmp strtoul vfprintf wcslen"""
    },
    "shell32.dll": {("95", "4"): "Shell_NotifyIconA"},
    "user32.dll": {
        ("95", "3.1"): """
            AdjustWindowRectEx AppendMenuA AttachThreadInput CallNextHookEx CallWindowProcA CloseClipboard
            CreateDialogIndirectParamA CreatePopupMenu CreateWindowExA DefDlgProcA DestroyIcon DestroyMenu DestroyWindow
            DispatchMessageA DrawTextA EmptyClipboard EnableWindow EnumChildWindows EnumThreadWindows FindWindowA
            GetActiveWindow GetAsyncKeyState GetClassInfoA GetClassNameA GetClientRect GetClipboardData GetCursorPos
            GetDC GetDlgCtrlID GetDlgItem GetFocus GetForegroundWindow GetKeyState GetMessageA GetMessageExtraInfo
            GetParent GetSystemMetrics GetWindow GetWindowLongA GetWindowPlacement GetWindowRect GetWindowTextA
            GetWindowTextLengthA GetWindowThreadProcessId InvalidateRect IsChild IsClipboardFormatAvailable
            IsDialogMessageA IsWindow IsWindowEnabled IsWindowVisible KillTimer LoadCursorA MapVirtualKeyA MessageBoxA
            OpenClipboard PeekMessageA PostMessageA PostQuitMessage PostThreadMessageA RegisterClassA RegisterHotKey
            RegisterWindowMessageA ReleaseDC SendMessageA SendMessageTimeoutA SendMessageW SetCursorPos SetFocus
            SetForegroundWindow SetTimer SetWindowLongA SetWindowPlacement SetWindowPos SetWindowTextA SetWindowsHookExA
            ShowWindow SystemParametersInfoA TrackPopupMenu TranslateMessage UnregisterHotKey UpdateWindow keybd_event
            mouse_event""",
        ("95", "4"): """
            GetKeyboardLayout GetSysColorBrush LoadImageA MapVirtualKeyExA RegisterClassExA VkKeyScanExA""",
    },
}
ICONS = ["ICOERR", "ICOEXP", "ICOQST", "ICOQUM"]
SIZES = [16, 20, 24, 32, 40, 48, 256]


class ProgramFileTest(unittest.TestCase):
    def setUp(self):
        self.program = pefile.PE(WINDOWS_BUILD / "QUMAEXP.EXE")
        self.addCleanup(self.program.close)

    def resources(self, kind, name=None):
        """The contents of the resources of a kind, by name or number."""
        kinds = {entry.id: entry for entry in self.program.DIRECTORY_ENTRY_RESOURCE.entries}
        found = {}
        for entry in kinds[pefile.RESOURCE_TYPE[kind]].directory.entries:
            place = entry.directory.entries[0].data.struct
            found[entry.id or str(entry.name)] = self.program.get_data(place.OffsetToData, place.Size)
        return found

    def test_program_starts_on_the_first_systems_of_both_families(self):
        header = self.program.OPTIONAL_HEADER
        self.assertEqual((header.MajorSubsystemVersion, header.MinorSubsystemVersion), (4, 0))
        self.assertLessEqual((header.MajorOperatingSystemVersion, header.MinorOperatingSystemVersion), (4, 0))
        imported = {
            (library.dll.decode().lower(), (function.name or b"by number").decode())
            for library in self.program.DIRECTORY_ENTRY_IMPORT
            for function in library.imports
        }
        listed = {
            (library, function)
            for library, systems in IMPORTS.items()
            for functions in systems.values()
            for function in functions.split()
        }
        self.assertIn(("kernel32.dll", "CreateFileA"), imported)
        self.assertEqual(imported - listed, set(), "of which system are these?")

    def test_program_uses_all_addresses_of_a_32_bit_program(self):
        self.assertTrue(self.program.FILE_HEADER.IMAGE_FILE_LARGE_ADDRESS_AWARE)

    def test_program_is_hardened(self):
        header = self.program.OPTIONAL_HEADER
        self.assertTrue(header.IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE)
        self.assertTrue(header.IMAGE_DLLCHARACTERISTICS_NX_COMPAT)
        self.assertTrue(header.IMAGE_DLLCHARACTERISTICS_NO_SEH)
        self.assertFalse(self.program.FILE_HEADER.IMAGE_FILE_RELOCS_STRIPPED)
        # Without these it could be moved to no other address. There is one for each address in the code, at least.
        moved = [entry for block in self.program.DIRECTORY_ENTRY_BASERELOC for entry in block.entries]
        self.assertGreater(len(moved), 1000)
        for section in self.program.sections:
            self.assertFalse(section.IMAGE_SCN_MEM_WRITE and section.IMAGE_SCN_MEM_EXECUTE, section.Name)

    def test_functions_guard_their_stack(self):
        # At its end such a function subtracts the guard from what it has kept of it: sub register, [address]. Every
        # address in the code stands in the table of those that move with the program.
        subtracted = collections.Counter()
        code = self.program.get_memory_mapped_image()
        for block in self.program.DIRECTORY_ENTRY_BASERELOC:
            for entry in block.entries:
                if code[entry.rva - 2] == 0x2B and code[entry.rva - 1] & 0xC7 == 0x05:
                    subtracted[code[entry.rva : entry.rva + 4]] += 1
        (_, count), = subtracted.most_common(1)
        self.assertGreater(count, 300)

    def test_manifest_leaves_the_rights_of_the_user_and_his_redirection_alone(self):
        manifest = self.resources("RT_MANIFEST")[1].decode()
        self.assertIn("Microsoft.Windows.Common-Controls", manifest)
        self.assertNotIn("requestedExecutionLevel", manifest)

    def test_icons_have_a_picture_for_each_resolution(self):
        groups, pictures = self.resources("RT_GROUP_ICON"), self.resources("RT_ICON")
        self.assertEqual(sorted(groups), ICONS)
        for name, group in groups.items():
            sizes = []
            for at in range(6, len(group), 14):
                width, height, _, _, _, bits, size, number = struct.unpack_from("<4B2HIH", group, at)
                picture = pictures[number]
                self.assertEqual((width, bits, size), (height, 32, len(picture)), name)
                sizes.append(width or 256)
                # As a bitmap the largest alone would be a quarter of a megabyte. Only Windows Vista and later ask for
                # it, and these read the other form.
                is_png = picture.startswith(b"\x89PNG\r\n\x1a\n")
                self.assertEqual(is_png, width == 0, name)
                if is_png:
                    self.assertEqual(struct.unpack_from(">2I", picture, 16), (256, 256), name)
                else:
                    self.assertEqual(struct.unpack_from("<3I", picture), (40, width, 2 * height), name)
            self.assertEqual(sizes, SIZES, name)


class LibrariesTest(EndToEndTest):
    def test_a_library_beside_the_program_is_not_loaded(self):
        stray = (WINDOWS_BUILD / "STRAY.DLL").read_bytes()
        names = ["imagehlp", "riched20"]
        for name in names:
            (self.folder / f"{name}.dll").write_bytes(stray)
        # By itself Wine prefers its own libraries to files of the same name wherever they lie; Windows does not.
        environment = self.desktop.environment
        overrides = environment["WINEDLLOVERRIDES"]
        self.addCleanup(environment.update, WINEDLLOVERRIDES=overrides)
        environment["WINEDLLOVERRIDES"] = f"{overrides};{','.join(names)}=n,b"
        self.lay_macro("MSG=$GDPDUPATH\n")
        self.start_teru()
        self.start_program()
        self.press()
        self.wait_run_ended()
        self.assertTrue(any(self.desktop.host_path(DESTINATION).iterdir()), "a path that was made")
        self.choose_from_menu("Protokoll anzeigen")
        form = self.probe.window("TARVEN Datenexport - Protokoll")
        self.assertEqual(self.probe.control(form, class_name="RichEdit20A").class_name, "RichEdit20A")
        self.answer(form.text, "alt+F4")
        self.probe.wait_gone(form)
        self.choose_from_menu("Info")
        self.dialog("OK", title="Info")
        self.assertEqual([path.name for path in self.folder.glob("*.loaded")], [])


if __name__ == "__main__":
    unittest.main()
