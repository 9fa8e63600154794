-- Neovim: findings, completion and help for macros by its own client. Put this file into the folder `plugin` of the
-- configuration; `makcheck` is looked for in the search path unless vim.g.makcheck names it.
local group = vim.api.nvim_create_augroup("tarven-mak", {})

vim.api.nvim_create_autocmd({ "BufRead", "BufNewFile" }, {
  group = group,
  pattern = { "*.mak", "*.MAK" },
  callback = function(event)
    vim.bo[event.buf].filetype = "tarven-mak"
  end,
})

-- The program reads Windows-1252; a file that is valid UTF-8 all the same keeps what it is.
vim.api.nvim_create_autocmd("BufReadPre", {
  group = group,
  pattern = { "*.mak", "*.MAK" },
  callback = function()
    vim.opt_local.fileencodings = "ucs-bom,utf-8,cp1252"
  end,
})

vim.api.nvim_create_autocmd("FileType", {
  group = group,
  pattern = "tarven-mak",
  callback = function(event)
    vim.bo[event.buf].commentstring = "REM %s"
    vim.bo[event.buf].omnifunc = "v:lua.vim.lsp.omnifunc"
    local client = vim.lsp.start_client({
      name = "makcheck",
      cmd = { vim.g.makcheck or "makcheck", "--lsp" },
      root_dir = vim.fn.fnamemodify(event.file, ":p:h"),
    })
    if client then
      vim.lsp.buf_attach_client(event.buf, client)
    end
  end,
})
