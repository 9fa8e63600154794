-- What a user does in Neovim with a macro that has mistakes: sees the findings, takes a completion and a quick fix. What
-- was seen goes to the file in SEEN, as JSON.
local seen = {}

local function wait(what, condition)
  if not vim.wait(20000, condition, 20) then
    error("waited in vain for " .. what)
  end
end

local function ask(method, params)
  local answers = vim.lsp.buf_request_sync(0, method, params, 20000)
  for _, answer in pairs(answers or {}) do
    return answer.result
  end
end

local ok, message = pcall(function()
  wait("findings", function()
    return #vim.diagnostic.get(0) > 0
  end)
  seen.findings = vim.tbl_map(function(finding)
    return { line = finding.lnum, column = finding.col, message = finding.message }
  end, vim.diagnostic.get(0))
  seen.encoding = vim.bo.fileencoding

  vim.api.nvim_win_set_cursor(0, { 1, 0 })
  local params = vim.lsp.util.make_range_params()
  params.context = { diagnostics = {} }
  local action = ask("textDocument/codeAction", params)[1]
  vim.lsp.util.apply_workspace_edit(action.edit, "utf-16")
  seen.mended = vim.api.nvim_buf_get_lines(0, 0, 1, true)[1]
  wait("the finding to go", function()
    return #vim.diagnostic.get(0) == 0
  end)

  vim.api.nvim_buf_set_lines(0, -1, -1, true, { "SELECTCOM" })
  vim.api.nvim_win_set_cursor(0, { vim.api.nvim_buf_line_count(0), 0 })
  local place = vim.lsp.util.make_position_params()
  place.position.character = #"SELECTCOM" -- behind the last letter, where only somebody who is typing can be
  local items = ask("textDocument/completion", place)
  seen.completion = vim.tbl_map(function(item)
    return item.label
  end, items)
  for _, item in ipairs(items) do
    if item.label == "SELECTCOMBO" then
      vim.lsp.util.apply_text_edits({ item.textEdit }, 0, "utf-16")
    end
  end
  seen.completed = vim.api.nvim_buf_get_lines(0, -2, -1, true)[1]
  vim.cmd("write")
end)
seen.error = not ok and message or nil

local file = io.open(os.getenv("SEEN"), "w")
file:write(vim.json.encode(seen))
file:close()
vim.cmd("qall!")
